/** Can have no proxy: an argument's class is in no package. */
public class UnnamedArgument {
    public void take(int count, UnnamedArgument other) {
    }
}

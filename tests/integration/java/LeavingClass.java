/** Ends the VM that initialises it. */
public class LeavingClass {
    static {
        System.exit(0);
    }
}

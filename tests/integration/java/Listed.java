/** Members of each kind, in an order that is not the alphabet's. Says something when it is initialised. */
public class Listed {
    static final String ZONE = "zone";
    long count;

    public static int[] sizes(String... names) {
        return new int[names.length];
    }

    public Listed(int count) {
        this.count = count;
    }

    void add(Integer value) {
        count += value;
    }

    protected void hidden() {
    }

    void add(short value) {
        count += value;
    }

    static {
        System.out.println("Listed is initialised");
    }
}

/** Says when it is initialised. A test makes its number a reference, which no verifier lets pass. */
public final class Damageable {
    private static final String SAID = say();

    private Damageable() {
    }

    private static String say() {
        System.out.println("initialised");
        return "";
    }

    static String number(int added) {
        int number = 12345;
        number += added;
        return SAID + number;
    }
}

package linking;

/** The rewriter's message about a class that it does not rewrite. */
public final class Refusal extends RuntimeException {
    private static final long serialVersionUID = 1;

    public Refusal(String message) {
        super(message);
    }
}

/** Calls through the agent's proxies against bare JNI calls with cached identifiers. The ratios are the result. */
public final class ProxyBench {
    private ProxyBench() {
    }

    static native void run(Object object);

    public static void main(String[] arguments) {
        System.load(arguments[0]);
        run(new Object());
    }
}

package growing;

/**
 * Calls a method of the first class often, then the other classes, then a later method of the first class, and then the
 * first method again.
 */
final class Early {
    private Early() {
    }

    public static void main(String[] words) {
        callOften();
        for (Letter letter : Letter.values()) {
            letter.call();
        }
        last();
        callOften();
    }

    private static void callOften() {
        for (int count = 0; count < 10_000; ++count) {
            first();
        }
    }

    private static void first() {
    }

    static void second() {
    }

    static void third() {
    }

    static void fourth() {
    }

    private static void last() {
    }
}

/** Each constant is of a class of its own. */
enum Letter {
    A {
        @Override
        void call() {
        }
    },
    B {
        @Override
        void call() {
        }
    },
    C {
        @Override
        void call() {
        }
    },
    D {
        @Override
        void call() {
        }
    },
    E {
        @Override
        void call() {
        }
    },
    F {
        @Override
        void call() {
        }
    },
    G {
        @Override
        void call() {
        }
    },
    H {
        @Override
        void call() {
        }
    },
    I {
        @Override
        void call() {
        }
    },
    J {
        @Override
        void call() {
        }
    },
    K {
        @Override
        void call() {
        }
    },
    L {
        @Override
        void call() {
        }
    },
    M {
        @Override
        void call() {
        }
    },
    N {
        @Override
        void call() {
        }
    },
    O {
        @Override
        void call() {
        }
    },
    P {
        @Override
        void call() {
        }
    };

    abstract void call();
}

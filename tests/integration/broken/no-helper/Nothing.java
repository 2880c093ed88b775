final class Nothing {}

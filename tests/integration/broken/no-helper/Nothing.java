final class Nothing {
}

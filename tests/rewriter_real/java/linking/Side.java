package linking;

import java.util.function.BiFunction;

/**
 * Loads the classes of a set of images, changed in one way or not at all. Names that the set has come from there, even
 * if the platform has them too; only java.* is the platform's alone.
 */
final class Side extends ClassLoader {
    private final Images images;
    private final BiFunction<String, byte[], byte[]> change;

    Side(Images images, BiFunction<String, byte[], byte[]> change) {
        super(ClassLoader.getPlatformClassLoader());
        this.images = images;
        this.change = change;
    }

    /** Links a class without initialising it. Returns an empty text if the VM did so, or else why it did not. */
    String link(String name) {
        Class<?> type = null;
        try {
            type = loadClass(name);
            // Links before it looks; that a field's class may then be missing is no matter.
            type.getDeclaredFields();
            return Rewriter.isLinked(type) ? "" : "no reason";
        } catch (LinkageError | ReflectiveOperationException | SecurityException | TypeNotPresentException reason) {
            return type != null && Rewriter.isLinked(type) ? "" : reason.toString();
        }
    }

    @Override
    protected Class<?> loadClass(String name, boolean resolve) throws ClassNotFoundException {
        synchronized (getClassLoadingLock(name)) {
            byte[] image = name.startsWith("java.") ? null : images.get(name);
            if (image == null) {
                return super.loadClass(name, resolve);
            }
            Class<?> loaded = findLoadedClass(name);
            if (loaded != null) {
                return loaded;
            }
            byte[] changed = change.apply(name, image);
            return defineClass(name, changed, 0, changed.length);
        }
    }
}

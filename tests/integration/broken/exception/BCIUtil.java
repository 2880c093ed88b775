package com.vantrel.util;

public final class BCIUtil {
    public static byte[] getComponentClassData() {
        throw new IllegalStateException("no class file today", new java.io.IOException("the disk is gone"));
    }
}

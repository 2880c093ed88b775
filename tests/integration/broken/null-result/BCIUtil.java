package com.vantrel.util;

public final class BCIUtil {
    public static byte[] getComponentClassData() {
        return null;
    }
}

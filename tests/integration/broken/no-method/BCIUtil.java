package com.vantrel.util;

public final class BCIUtil {}

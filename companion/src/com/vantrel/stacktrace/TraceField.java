package com.vantrel.stacktrace;

import com.vantrel.hooks.ComponentField;

/**
 * The field that a component's trace lies in. Sought when a trace is first asked for, and not while a program starts.
 */
final class TraceField {
    static final ComponentField FIELD = new ComponentField("vantrel$trace");

    private TraceField() {
    }
}

package com.vantrel.stacktrace;

import com.vantrel.hooks.ComponentField;

/**
 * The field that a component's trace lies in. In a class of its own, so that it is looked for when a trace is first
 * asked for, and not while the program starts.
 */
final class TraceField {
    static final ComponentField FIELD = new ComponentField("vantrel$trace");

    private TraceField() {
    }
}

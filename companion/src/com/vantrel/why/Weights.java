package com.vantrel.why;

import java.awt.Component;
import java.awt.Container;
import java.awt.Dimension;
import java.awt.GridBagLayout;
import java.awt.LayoutManager;
import java.util.stream.IntStream;

/** That nothing in a GridBagLayout grows, for want of weights: all cells stay in the middle of what is left. */
final class Weights {
    private Weights() {
    }

    static Sentence of(Component component) {
        Container parent = Around.parent(component);
        LayoutManager layout = Managed.layout(parent);
        if (!(layout instanceof GridBagLayout) || Managed.isPrograms(layout)) {
            return null;
        }
        int[][] sizes = ((GridBagLayout) layout).getLayoutDimensions();
        Dimension room = Extent.size(parent);
        if (IntStream.of(sizes[0]).sum() >= room.width && IntStream.of(sizes[1]).sum() >= room.height) {
            return null; // there is nothing left to be shared out
        }
        for (double[] weights : ((GridBagLayout) layout).getLayoutWeights()) {
            for (double weight : weights) {
                if (weight > 0) {
                    return null;
                }
            }
        }
        return Sentence.of(
                "All weights of GridBagLayout in ", parent, " are 0, so that its cells stay together in the middle.");
    }
}

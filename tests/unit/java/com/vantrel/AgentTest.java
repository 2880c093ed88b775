package com.vantrel;

import static org.junit.Assert.assertFalse;

import java.awt.Graphics2D;
import java.awt.image.BufferedImage;

import javax.swing.JLabel;

import org.junit.Test;

public class AgentTest {
    /** Without the agent, as at the end of a VM, when its native methods are gone and some thread still asks. */
    @Test
    public void callsAfterTheAgentsEndDoNothing() {
        Graphics2D graphics = new BufferedImage(1, 1, BufferedImage.TYPE_INT_RGB).createGraphics();
        Agent.highlight(new JLabel(), graphics);
        Agent.run(new JLabel(), () -> { throw new AssertionError("there is nobody to run it"); });
        assertFalse(Agent.canHighlight());
    }
}

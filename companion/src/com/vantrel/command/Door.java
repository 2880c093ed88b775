package com.vantrel.command;

import java.nio.file.Paths;

/**
 * The way in from outside the VM: the class that the Attach API has a VM call when the jar is loaded into it. The VM
 * finds the class on its boot class path, where the agent has put it, so that it is the one that knows all there is.
 */
public final class Door {
    private Door() {
    }

    /**
     * Has a question answered that lies in a folder; returns before it is. The VM deals with one caller at a time here,
     * and whoever asks next must not wait for an event thread that hangs.
     *
     * @param folder what {@link Visit} describes
     */
    public static void agentmain(String folder) {
        Thread thread = new Thread(new Visit(Paths.get(folder)), "vantrel-command");
        thread.setDaemon(true);
        thread.setContextClassLoader(null); // not to keep that of the program's that happens to be there
        thread.start();
    }
}

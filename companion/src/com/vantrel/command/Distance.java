package com.vantrel.command;

/** How far one word is from another: how many characters have to be put in, taken out or replaced. */
final class Distance {
    private Distance() {
    }

    /** @param enough a distance from which on nobody cares how far it is */
    static int between(String one, String other, int enough) {
        if (Math.abs(one.length() - other.length()) >= enough) {
            return enough;
        }
        int[] above = new int[other.length() + 1];
        for (int j = 0; j < above.length; j++) {
            above[j] = j;
        }
        for (int i = 1; i <= one.length(); i++) {
            int[] row = new int[above.length];
            row[0] = i;
            for (int j = 1; j < row.length; j++) {
                int replaced = above[j - 1] + (one.charAt(i - 1) == other.charAt(j - 1) ? 0 : 1);
                row[j] = Math.min(replaced, 1 + Math.min(above[j], row[j - 1]));
            }
            above = row;
        }
        return above[other.length()];
    }
}

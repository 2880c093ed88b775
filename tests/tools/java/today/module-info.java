/** Carried over as it is. */
module today {
}

// A plain walk through a class file, to compare the rewriter with: it looks only at what has to be looked at to find
// all instructions.
#ifndef VANTREL_BENCH_WALK_H
#define VANTREL_BENCH_WALK_H

#include "classes.h"

// Goes from constant to constant, from member to member, from attribute to attribute and from instruction to
// instruction, and returns how many of all these there are. It writes nothing, and checks nothing: the class file must
// be a proper one.
std::size_t walk(const Image& image);

#endif

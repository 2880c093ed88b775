// What ends a run before its time.
#ifndef VANTREL_REWRITE_FAILURE_H
#define VANTREL_REWRITE_FAILURE_H

#include <string>

// One line for the user: what is wrong and, where that is not plain, what to do about it.
struct Failure {
    std::string line;
};

#endif

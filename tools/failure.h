// What ends a command, or the work on one of its inputs, before its time.
#ifndef VANTREL_FAILURE_H
#define VANTREL_FAILURE_H

#include <string>

namespace command {

// One line for the user, without the command's name: what is wrong and, where that is not plain, what to do about it.
struct Failure {
    std::string line;
};

}  // namespace command

#endif

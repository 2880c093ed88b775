// What ends the command, or the work on one class: a line for the user, without the command's name.
#ifndef VANTREL_GENERATE_FAILURE_H
#define VANTREL_GENERATE_FAILURE_H

#include <string>

struct Failure {
    std::string message;
};

#endif

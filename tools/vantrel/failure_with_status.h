// What ends the command with an exit status that says more than that it has failed.
#ifndef VANTREL_FAILURE_WITH_STATUS_H
#define VANTREL_FAILURE_WITH_STATUS_H

#include <string>

namespace launch {

// line   for the user, without the command's name: what is wrong and, where that is not plain, what to do about it;
//        more lines may follow
struct FailureWithStatus {
    std::string line;
    int status;
};

}  // namespace launch

#endif

// The exit statuses of the commands that ask programs.
#ifndef VANTREL_STATUSES_H
#define VANTREL_STATUSES_H

namespace outside {

// The companion answers with the first three (Answer.java).
constexpr int kAnswered = 0;
constexpr int kNoSuchThing = 1;
constexpr int kNoAnswer = 2;

}  // namespace outside

#endif

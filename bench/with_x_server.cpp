// Runs a command on an X server of its own, for benchmarks of windows: with-x-server COMMAND ARGUMENTS...
#include <cstdio>
#include <string>
#include <vector>

#include "process.h"
#include "x_server.h"

int main(int count, char** words) {
    const XServer x;
    const Finished command =
        run(std::vector<std::string>(words + 1, words + count), {.folder = {}, .environment = {x.display()}});
    std::fputs(command.out.c_str(), stdout);
    std::fputs(command.err.c_str(), stderr);
    return command.status;
}

#include "gradejob.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>

namespace {

grade::Terminal terminalOf(int descriptor) {
    if (isatty(descriptor) == 0) {
        return {};
    }
    winsize size{};
    const bool known = ioctl(descriptor, TIOCGWINSZ, &size) == 0;
    return {std::getenv("NO_COLOR") == nullptr, known ? size.ws_col : std::size_t{80}};
}

} // namespace

int main(int argc, char** argv) {
    const grade::ParsedCommandLine parsed = grade::parseCommandLine(argc, argv, std::cout, std::cerr);
    if (!parsed.options) {
        return parsed.status;
    }
    std::ios::sync_with_stdio(false);
    const grade::Console console{
        std::cin, std::cout, std::cerr, terminalOf(STDOUT_FILENO), isatty(STDERR_FILENO) != 0, STDOUT_FILENO};
    return grade::run(*parsed.options, console);
}

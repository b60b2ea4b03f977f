// skemu: look into and act on an emulated host's state file.
//
// The running console notices a changed state file at its next request, so faults
// applied here reach it within one refresh.

#include "emulator/sk_emu_tool.h"

#include <cstdio>

int main(int argc, char **argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    std::string out, err;
    const int status = sk_emu::skemuMain(args, out, err);
    std::fputs(out.c_str(), stdout);
    std::fputs(err.c_str(), stderr);
    return status;
}

#pragma once
// skemu's work apart from its process, so tests run it in-process: look into and act
// on an emulated host's state file.

#include <cstdint>
#include <string>
#include <vector>

namespace sk_emu {

// Runs skemu with `args` (the words after the program name). What it prints goes to
// `out`, complaints to `err`. Returns the exit status: 0 done, 1 refused or failed, 2
// not understood. A refused command leaves the state file as it was, byte for byte.
int skemuMain(const std::vector<std::string> &args, std::string &out, std::string &err);

// Reads a size such as "4TB", "960GB", "1.92TB" (decimal units) or "7814037168s" (512-byte
// sectors) as a count of sectors, rounded down. False with `why` when the text is not one.
bool parseSectors(const std::string &text, std::uint64_t &sectors, std::string &why);

} // namespace sk_emu

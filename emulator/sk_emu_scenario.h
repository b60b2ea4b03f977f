#pragma once
// Scenario files: the emulated host's whole state as JSON (described in
// docs/emulated-host.md), the built-in default workstation, and the state file the
// console keeps between runs.

#include "emulator/sk_emu_model.h"

#include <string>

namespace sk_emu {

// Reads a scenario. On failure returns false and `error` names the first offending
// field ("disks[2].capacitySectors: ...") ; `model` is then unspecified.
bool parseScenario(const std::string &text, Model &model, std::string &error);

// Writes the model as a scenario that parseScenario reads back to the same model.
std::string writeScenario(const Model &model);

// A workstation as it leaves the factory and runs for a while: one controller, SATA
// HDDs, SATA SSDs and NVMe drives, a RAID 1 system array holding C:, a RAID 5 data
// array holding D:, an unused disk, a global spare and some history in the event log.
Model defaultScenario();

// Reads a state file; the error names the file and what is wrong with it.
bool readStateFile(const std::string &path, Model &model, std::string &error);

// Writes a state file through a temporary file and a rename, so an interruption
// leaves either the old file or the new one, never a half-written one.
bool writeStateFileAtomically(const std::string &path, const Model &model, std::string &error);

// The state file the console uses: $STRATAKEEP_EMULATED_HOST, or "emulated-host.json"
// in the user's application-data folder.
std::string defaultStateFilePath();

} // namespace sk_emu

#pragma once
// Chooses what answers the console's device requests: the real drivers through
// Win32, or the emulated host. STRATAKEEP_BACKEND ("native" or "emulated") decides;
// without it Windows uses the real drivers and every other system the emulated host.

#include <QString>

// Installs the chosen backend. Returns false with a reason the user can act on when
// the emulated host's state file can't be used; the console then runs without drivers.
bool SK_InstallBackend(QString &error);

// "native" or "emulated", as chosen for this process.
QString SK_BackendName();

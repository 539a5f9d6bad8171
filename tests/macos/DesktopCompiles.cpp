// SPDX-License-Identifier: MIT
// The program's windows on macOS hold together; without a Mac they can only be compiled.
#include "app/DesktopMacOS.h"

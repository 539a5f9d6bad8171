// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/LayerProtocols.h"

extern "C" {
#include <viewporter-code.h>
#include <wlr-layer-shell-code.h>
}

// SPDX-License-Identifier: MIT
// The functions of the Wayland protocols that Qt does not wrap, made from their descriptions while building.
#pragma once

extern "C" {
#include <viewporter-client.h>
#include <wayland-client.h>
#include <wlr-layer-shell-client.h>
}

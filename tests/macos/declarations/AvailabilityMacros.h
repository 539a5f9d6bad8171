// SPDX-License-Identifier: MIT
// The versions of the platform that libraries ask for, declared by us.
#pragma once

#include <Availability.h>

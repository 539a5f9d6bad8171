// SPDX-License-Identifier: MIT
// The platform versions queried by libraries, declared by us.
#pragma once

#include <Availability.h>

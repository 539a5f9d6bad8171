// SPDX-License-Identifier: MIT
// The contract of the audio system, as tests over an implementation.
//
// A test program includes this in one source and names its world:
//
//      INSTANTIATE_TEST_SUITE_P(Simulated, PlatformContract, ::testing::Values(&makeSimulatedContractWorld));
//      INSTANTIATE_TEST_SUITE_P(Simulated, TapContract, ::testing::Values(&makeSimulatedContractWorld));
#pragma once

#include "tests/platform/DeviceContract.h"
#include "tests/platform/ProcessContract.h"
#include "tests/platform/TapContract.h"

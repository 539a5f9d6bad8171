// SPDX-License-Identifier: MIT
// The controller's care for calls: while there is one, the other apps are lowered.
#include "control/AudioController.h"
#include "control/CallDucking.h"

namespace fadeloom {

void AudioController::updateFocus()
{
    if (state_.callApp.assignIfDifferent(appOnCall(*state_.apps, state_.settings->focus)))
        pushAllSettings();
}

}  // namespace fadeloom

// SPDX-License-Identifier: MIT
#include "commands/JsonText.h"

namespace fadeloom {

std::string jsonLine(const FloatJson& json)
{
    return json.dump(-1, ' ', false, FloatJson::error_handler_t::replace);
}

FloatJson appSettingsJson(const AppAudioSettings& app)
{
    return {
        {"volume", app.volume},
        {"muted", app.muted},
        {"outputUID", app.outputUID ? FloatJson(*app.outputUID) : FloatJson()},
        {"eq", app.eqEnabled},
        {"preset", app.eqPresetName ? FloatJson(*app.eqPresetName) : FloatJson()},
        {"gains", app.eqGains},
        {"preamp", app.eqPreamp},
    };
}

}  // namespace fadeloom

// SPDX-License-Identifier: MIT
#include "shell/AboutPanel.h"

#include "platform/Application.h"
#include "shell/WebAddress.h"

namespace fadeloom::AboutPanel {

void show(Application& application, const Translate& translate, const std::string& webPage)
{
    application.activate();
    application.showAboutPanel({
        .text = translate(
            "PlatformTexts", "Free per-app volume, output routing, equalizer and recording for macOS."),
        .linkText = hostName(webPage),
        .linkURL = webPage,
    });
}

}  // namespace fadeloom::AboutPanel

// SPDX-License-Identifier: MIT
// The selected preset, and actions for presets.
pragma ComponentBehavior: Bound

import QtQuick
import Fadeloom

MenuLabel {
    id: presets

    required property EQModel eq

    signal nameWanted

    size: 11
    spokenName: qsTr("Equalizer preset")
    text: eq.presetTitle
    entries: isOpen ? eq.presetEntries : []
    pinned: isOpen ? eq.actionEntries : []
    onChosen: (key, isSubmenu) => {
        if (isSubmenu)
            deletion.openBeside(presets.menu);
        else if (key === "save")
            nameWanted();
        else if (key === "reset")
            eq.resetToFlat();
        else
            eq.applyPreset(key);
    }

    PopUpMenu {
        id: deletion
        entries: isWanted ? presets.eq.deleteEntries : []
        onChosen: key => {
            presets.menu.close();
            presets.eq.deletePreset(key);
        }

        function openBeside(menu) {
            right = menu.x - 2;
            top = menu.y + menu.height - 70;
            openMeasured();
        }
    }
}

// SPDX-License-Identifier: MIT
// Which curve is chosen, and what else can be done with curves.
import QtQuick
import Fadeloom

MenuLabel {
    id: presets

    property EQModel eq

    signal nameWanted()

    size: 11
    spokenName: qsTr("Equalizer preset")
    text: eq ? eq.presetTitle : ""
    entries: eq ? eq.presetEntries : []
    pinned: eq ? eq.actionEntries : []
    onChosen: (key, isSubmenu) => {
        if (isSubmenu)
            deletion.openBeside(presets.menu)
        else if (key === "save")
            nameWanted()
        else if (key === "reset")
            eq.resetToFlat()
        else
            eq.applyPreset(key)
    }

    PopUpMenu {
        id: deletion
        entries: presets.eq ? presets.eq.deleteEntries : []
        onChosen: key => {
            presets.menu.close()
            presets.eq.deletePreset(key)
        }

        function openBeside(menu) {
            right = menu.x - 2
            top = menu.y + menu.height - 70
            openMeasured()
        }
    }
}

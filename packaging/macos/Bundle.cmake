# SPDX-License-Identifier: MIT
# Turns the program into a bundle: its name, declarations, icons and texts.
set(resources
    ${CMAKE_CURRENT_LIST_DIR}/AppIcon.icns
    ${CMAKE_CURRENT_LIST_DIR}/MenuBarIcon.png
    ${CMAKE_CURRENT_LIST_DIR}/MenuBarIcon@2x.png
)
set_source_files_properties(${resources} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
foreach(language IN ITEMS en pl)
    set(table ${CMAKE_CURRENT_LIST_DIR}/${language}.lproj/InfoPlist.strings)
    set_source_files_properties(${table} PROPERTIES MACOSX_PACKAGE_LOCATION Resources/${language}.lproj)
    list(APPEND resources ${table})
endforeach()

target_sources(fadeloom PRIVATE ${resources})
set_target_properties(fadeloom PROPERTIES
    MACOSX_BUNDLE ON
    OUTPUT_NAME Fadeloom
    MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_LIST_DIR}/Info.plist.in
    MACOSX_BUNDLE_EXECUTABLE_NAME Fadeloom
    MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
    MACOSX_BUNDLE_BUNDLE_VERSION ${FADELOOM_BUILD}
)

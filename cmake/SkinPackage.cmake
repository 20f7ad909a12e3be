# Makes the resource package of one skin; a script, run with
#   SKIN     the skin's name
#   SOURCE   the folder of skins
#   WORK     a folder for what is made on the way
#   RCC      Qt's resource compiler
#   PACKAGE  the .rcc file to write
cmake_minimum_required(VERSION 3.22)
file(READ "${SOURCE}/${SKIN}/Palette.json" palette)

function(color_of out role)
    string(JSON color GET "${palette}" roles ${role})
    set(${out} "${color}" PARENT_SCOPE)
endfunction()

# Icons that tell of a tone have its colour.
set(tone_info info)
set(tone_question info)
set(tone_warning warn)
set(tone_error error)
set(tone_ok ok)

function(write_icon name suffix role)
    color_of(color ${role})
    string(REPLACE "currentColor" "${color}" colored "${drawing}")
    file(WRITE "${WORK}/Icons/${name}${suffix}.svg" "${colored}")
    set(entries "${entries}        <file>Icons/${name}${suffix}.svg</file>\n" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK}")
set(entries "")
file(GLOB icons "${SOURCE}/icons/*.svg")
foreach(icon IN LISTS icons)
    get_filename_component(name "${icon}" NAME_WE)
    file(READ "${icon}" drawing)
    set(role icon)
    if(DEFINED tone_${name})
        set(role ${tone_${name}})
    endif()
    write_icon(${name} "" ${role})
    write_icon(${name} -disabled text-disabled)
    write_icon(${name} -selected on-selection)
    write_icon(${name} -on-accent on-accent)
endforeach()

set(sheet_entries "")
file(GLOB sheets "${SOURCE}/qss/toolkit/*.qss")
foreach(sheet IN LISTS sheets)
    get_filename_component(name "${sheet}" NAME)
    string(APPEND sheet_entries "        <file alias=\"${name}\">${sheet}</file>\n")
endforeach()

file(WRITE "${WORK}/${SKIN}.qrc" "<RCC>
    <qresource prefix=\"/VantorGUIToolKit\">
${entries}    </qresource>
    <qresource prefix=\"/VantorGUIToolKit/Palette\">
        <file alias=\"Palette.json\">${SOURCE}/${SKIN}/Palette.json</file>
    </qresource>
    <qresource prefix=\"/VantorGUIToolKit/Qss/Qss/VantorGUIToolkit\">
${sheet_entries}    </qresource>
    <qresource prefix=\"/VantorGUIToolkit/Dialog/Images/Dialog\">
        <file alias=\"Loading.gif\">${SOURCE}/${SKIN}/Loading.gif</file>
    </qresource>
</RCC>
")
execute_process(COMMAND "${RCC}" --binary "${WORK}/${SKIN}.qrc" -o "${PACKAGE}" COMMAND_ERROR_IS_FATAL ANY)

# The faces of the program, staged from the system's packages into the program folder (docs/fonts.md).

set(font_package fonts-liberation)
set(font_files
    LiberationSans-Regular.ttf
    LiberationSans-Bold.ttf
    LiberationMono-Regular.ttf
    LiberationMono-Bold.ttf)
set(font_folders
    /usr/share/fonts/truetype/liberation
    /usr/share/fonts/truetype/liberation2
    /usr/share/fonts/liberation
    /usr/share/fonts/liberation-fonts
    /usr/share/fonts/TTF)

# Asks the system's own list, for a machine that keeps its fonts elsewhere. Empty when it has none of that name.
function(ask_font_list name result)
    find_program(VENTREL_FC_LIST fc-list)
    if(VENTREL_FC_LIST)
        execute_process(COMMAND ${VENTREL_FC_LIST} : file OUTPUT_VARIABLE listed ERROR_QUIET)
        string(REPLACE "." "\\." pattern ${name})
        if(listed MATCHES "(/[^\n]*/${pattern}): ")
            set(${result} ${CMAKE_MATCH_1} PARENT_SCOPE)
        endif()
    endif()
endfunction()

set(staged_fonts)
set(found_fonts)
foreach(name ${font_files})
    find_file(VENTREL_FONT_${name} ${name} PATHS ${font_folders} NO_DEFAULT_PATH)
    set(font ${VENTREL_FONT_${name}})
    if(NOT font)
        ask_font_list(${name} font)
    endif()
    if(NOT font)
        message(FATAL_ERROR "The font ${name} is not on this machine. Install the package ${font_package} "
            "(its file may also lie in any folder that fc-list knows) and configure again.")
    endif()
    set(staged ${VENTREL_PROGRAM_FOLDER}/fonts/${name})
    add_custom_command(OUTPUT ${staged}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${VENTREL_PROGRAM_FOLDER}/fonts
        COMMAND ${CMAKE_COMMAND} -E copy ${font} ${staged}
        DEPENDS ${font}
        COMMENT "Staging ${name}"
        VERBATIM)
    list(APPEND staged_fonts ${staged})
    list(APPEND found_fonts ${font})
endforeach()

# Their licence travels with them.
find_file(VENTREL_FONT_LICENCE copyright PATHS /usr/share/doc/${font_package} NO_DEFAULT_PATH)
if(VENTREL_FONT_LICENCE)
    set(staged ${VENTREL_PROGRAM_FOLDER}/fonts/LICENCE.txt)
    add_custom_command(OUTPUT ${staged}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${VENTREL_PROGRAM_FOLDER}/fonts
        COMMAND ${CMAKE_COMMAND} -E copy ${VENTREL_FONT_LICENCE} ${staged}
        DEPENDS ${VENTREL_FONT_LICENCE}
        VERBATIM)
    list(APPEND staged_fonts ${staged})
endif()

add_custom_target(fonts ALL DEPENDS ${staged_fonts})
set(VENTREL_FONTS ${found_fonts} CACHE INTERNAL "The system's faces that stand in for the program's own")

# Fills what a man page takes from elsewhere into it, and packs it:
#
#     cmake -DPAGE=in -DOUT=out.gz -DGZIP=gzip [-DFORMATS=docs/formats.md] [-DPROGRAM=ventrel-sim] -P man_page.cmake
#
# FORMATS: its table of options stands for @VENTREL_INI_KEYS@. PROGRAM: the options of its --help stand for
# @VENTREL_SIM_OPTIONS@.

# roff(RESULT TEXT): the text with what means something to the formatter taken literally.
function(roff result text)
    string(REPLACE "\\" "\\e" text "${text}")
    string(REPLACE "-" "\\-" text "${text}")
    string(REPLACE "`" "" text "${text}")
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

# item(TERM TEXT): one more of the list VENTREL_ITEMS.
macro(item term text)
    roff(left "${term}")
    roff(right "${text}")
    string(APPEND VENTREL_ITEMS ".TP\n.B ${left}\n${right}\n")
endmacro()

file(READ ${PAGE} page)
set(VENTREL_ITEMS "")
if(FORMATS)
    file(STRINGS ${FORMATS} rows REGEX "^\\| `[A-Za-z]+` \\|")
    foreach(row IN LISTS rows)
        if(row MATCHES "^\\| `([A-Za-z]+)` \\| ([^|]*) \\| (.*) \\|$")
            item("${CMAKE_MATCH_1}" "${CMAKE_MATCH_3} (default: ${CMAKE_MATCH_2}).")
        elseif(row MATCHES "^\\| `(Aid[A-Za-z]+)` \\| (.*) \\|$")
            item("${CMAKE_MATCH_1}" "Aid: ${CMAKE_MATCH_2} (default: 0).")
        endif()
    endforeach()
    string(REPLACE "@VENTREL_INI_KEYS@\n" "${VENTREL_ITEMS}" page "${page}")
endif()
if(PROGRAM)
    execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\n  --[^\n]*" rows "${help}")
    foreach(row IN LISTS rows)
        string(REGEX MATCH "^\n  (--[^ ]+( [^ ]+)?)  +(.*)$" found "${row}")
        item("${CMAKE_MATCH_1}" "${CMAKE_MATCH_3}.")
    endforeach()
    string(REPLACE "@VENTREL_SIM_OPTIONS@\n" "${VENTREL_ITEMS}" page "${page}")
endif()
if(page MATCHES "@[A-Z_]+@" OR ((FORMATS OR PROGRAM) AND VENTREL_ITEMS STREQUAL ""))
    message(FATAL_ERROR "${PAGE}: something was left unfilled")
endif()

string(REGEX REPLACE "\\.gz$" "" plain ${OUT})
file(WRITE ${plain} "${page}")
execute_process(COMMAND ${GZIP} -9nf ${plain} COMMAND_ERROR_IS_FATAL ANY)

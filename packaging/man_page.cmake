# Fills what a man page takes from elsewhere into it, and packs it:
#
#     cmake -DPAGE=in -DOUT=out.gz -DGZIP=gzip [-DFORMATS=docs/formats.md]
#         [-DPROGRAM=ventrel-apt [-DSUBCOMMANDS=build,check]] -P man_page.cmake
#
# FORMATS: its table of options stands for @VENTREL_INI_KEYS@. PROGRAM: the options of its --help stand for
# @VENTREL_OPTIONS@; whatever its help and that of its subcommands names and the page does not, fails the build.

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
    # A semicolon would part the list of rows; a text goes on in lines that are further in.
    string(REPLACE ";" "<semicolon>" rows "${help}")
    string(REGEX REPLACE "\n     +" " " rows "${rows}")
    string(REGEX MATCHALL "\n  --[^\n]*" rows "${rows}")
    foreach(row IN LISTS rows)
        if(NOT row MATCHES "^\n  (--[^ ]+( [^ a-z][^ ]*)?) +(.*)$")
            message(FATAL_ERROR "${PROGRAM} --help: no option and its meaning: ${row}")
        endif()
        set(option "${CMAKE_MATCH_1}")
        string(REPLACE "<semicolon>" ";" meaning "${CMAKE_MATCH_3}")
        item("${option}" "${meaning}.")
    endforeach()
    string(REPLACE "@VENTREL_OPTIONS@\n" "${VENTREL_ITEMS}" page "${page}")
endif()
if(page MATCHES "@[A-Z_]+@" OR (FORMATS AND VENTREL_ITEMS STREQUAL ""))
    message(FATAL_ERROR "${PAGE}: something was left unfilled")
endif()

# must_tell(WORD WHERE): the page has that word.
function(must_tell word where)
    roff(word "${word}")
    string(REPLACE "\\" "\\\\" pattern "${word}")
    if(NOT page MATCHES "(^|[^a-z-])${pattern}([^a-z-]|$)")
        message(FATAL_ERROR "${PAGE} does not tell ${word}, which ${where} does")
    endif()
endfunction()

if(PROGRAM)
    string(REPLACE "," ";" subcommands "${SUBCOMMANDS}")
    foreach(subcommand IN ITEMS "" LISTS subcommands)
        execute_process(COMMAND ${PROGRAM} ${subcommand} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
        string(REGEX MATCHALL "--[a-z][a-z-]*|/[A-Z]+" options "${help}")
        foreach(option IN LISTS options subcommand)
            must_tell("${option}" "${PROGRAM} ${subcommand} --help")
        endforeach()
        string(REGEX MATCH "Exit status: .*" statuses "${help}")
        string(REGEX MATCHALL "(: |;[ \n]+)[0-9]" statuses "${statuses}")
        foreach(status IN LISTS statuses)
            string(REGEX REPLACE "[^0-9]" "" status "${status}")
            if(status AND NOT page MATCHES "\n\\.B ${status}\n")
                message(FATAL_ERROR "${PAGE} does not tell the exit status ${status}")
            endif()
        endforeach()
    endforeach()
endif()

string(REGEX REPLACE "\\.gz$" "" plain ${OUT})
file(WRITE ${plain} "${page}")
execute_process(COMMAND ${GZIP} -9nf ${plain} COMMAND_ERROR_IS_FATAL ANY)

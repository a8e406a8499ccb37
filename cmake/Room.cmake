# Flags that every target of the project shares, and the helpers with which the rooms are declared.

add_library(ventrel_flags INTERFACE)
target_compile_options(ventrel_flags INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wpedantic)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 sees overlapping copies in its own std::string (its bug 105329).
    target_compile_options(ventrel_flags INTERFACE -Wno-restrict)
endif()

# What the sanitizers watch: the rooms and the game. Tests and the tools' own command lines only carry them along: they
# are a third of the code, and watching them would cost a new machine minutes for faults that reach no player.
add_library(ventrel_watched INTERFACE)
if(VENTREL_SANITIZE)
    target_compile_options(ventrel_watched INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(ventrel_flags INTERFACE _GLIBCXX_ASSERTIONS VENTREL_SANITIZED)
    target_link_options(ventrel_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VENTREL_FUZZ)
    target_compile_options(ventrel_watched INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Every room has an include folder of its own, rooms/<room>/ in the build, which holds one link: to the room's folder,
# under the path that others write. It reaches whoever links the room and nobody else, so that a room can include
# what it links, and a file that includes anything else does not compile.

# ventrel_open_room(ROOM SCOPE): makes that folder.
function(ventrel_open_room room scope)
    set(top ${CMAKE_SOURCE_DIR}/src)
    cmake_path(IS_PREFIX top ${CMAKE_CURRENT_SOURCE_DIR} in_src)
    if(NOT in_src)
        set(top ${CMAKE_SOURCE_DIR})
    endif()
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${top} OUTPUT_VARIABLE path)

    set(entrance ${CMAKE_BINARY_DIR}/rooms/${room})
    file(REMOVE_RECURSE ${entrance})
    cmake_path(GET path PARENT_PATH above)
    file(MAKE_DIRECTORY ${entrance}/${above})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${entrance}/${path} SYMBOLIC)
    file(GLOB headers RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    list(GET headers 0 sample)
    target_include_directories(${room} ${scope} ${entrance})
    # Debuggers, assertions and sanitizers name the file itself, not the way to it.
    target_compile_options(${room} ${scope} -ffile-prefix-map=${entrance}/=${top}/)

    set_property(GLOBAL APPEND PROPERTY VENTREL_ROOMS ${room})
    set_property(TARGET ${room} PROPERTY VENTREL_SAMPLE ${path}/${sample})
endfunction()

# ventrel_room(NAME SOURCES... [USES libraries...]): one room of the house, a static library, or headers
# alone. It may include the rooms named after USES, and what these use.
function(ventrel_room name)
    cmake_parse_arguments(ROOM "" "" "USES" ${ARGN})
    if(ROOM_UNPARSED_ARGUMENTS)
        add_library(${name} STATIC ${ROOM_UNPARSED_ARGUMENTS})
        target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE ventrel_flags ventrel_watched)
        ventrel_open_room(${name} PUBLIC)
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE ${ROOM_USES})
        ventrel_open_room(${name} INTERFACE)
    endif()
endfunction()

# ventrel_program(NAME SOURCES... [USES libraries...]): an executable in the program folder.
function(ventrel_program name)
    cmake_parse_arguments(PROGRAM "" "" "USES" ${ARGN})
    add_executable(${name} ${PROGRAM_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE ${PROGRAM_USES} ventrel_flags ventrel_watched)
endfunction()

# ventrel_tool(NAME SOURCES... [USES libraries...]): a program whose own code reads the command line by CLI11 and leaves
# the work to rooms. Unoptimised: the library is large, and a compiler spends half a minute on it for nothing.
function(ventrel_tool name)
    cmake_parse_arguments(TOOL "" "" "USES" ${ARGN})
    add_executable(${name} ${TOOL_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE ${TOOL_USES} ventrel_flags CLI11::CLI11)
    target_compile_options(${name} PRIVATE -O0)
endfunction()

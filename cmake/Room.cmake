# Flags that every target of the project shares, and the helpers with which the rooms are declared.

add_library(ventrel_flags INTERFACE)
target_compile_options(ventrel_flags INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wpedantic)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 sees overlapping copies in its own std::string (its bug 105329).
    target_compile_options(ventrel_flags INTERFACE -Wno-restrict)
endif()
target_include_directories(ventrel_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(VENTREL_SANITIZE)
    target_compile_options(ventrel_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(ventrel_flags INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(ventrel_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VENTREL_FUZZ)
    target_compile_options(ventrel_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# ventrel_room(NAME SOURCES... [USES libraries...]): one room of the house, a static library.
# The libraries named after USES are the only rooms that it may include.
function(ventrel_room name)
    cmake_parse_arguments(ROOM "" "" "USES" ${ARGN})
    add_library(${name} STATIC ${ROOM_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PUBLIC ${ROOM_USES} PRIVATE ventrel_flags)
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
endfunction()

# ventrel_program(NAME SOURCES... [USES libraries...]): an executable in the program folder.
function(ventrel_program name)
    cmake_parse_arguments(PROGRAM "" "" "USES" ${ARGN})
    add_executable(${name} ${PROGRAM_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE ${PROGRAM_USES} ventrel_flags)
endfunction()

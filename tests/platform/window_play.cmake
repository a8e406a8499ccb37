# The plays of tests/window, without a window, for the tests of every program that has one.
add_library(ventrel_window_play STATIC ${CMAKE_CURRENT_LIST_DIR}/window_play.cpp)
target_link_libraries(ventrel_window_play PUBLIC ventrel_headless PRIVATE GTest::gtest ventrel_flags)
target_include_directories(ventrel_window_play PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_compile_definitions(ventrel_window_play PUBLIC
    PLAYS_FOLDER="${CMAKE_SOURCE_DIR}/tests/window")

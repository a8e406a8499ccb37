# Comparing with golden pictures, for the tests of every room that draws.
add_library(ventrel_golden STATIC ${CMAKE_CURRENT_LIST_DIR}/golden.cpp)
target_link_libraries(ventrel_golden PUBLIC ventrel_images ventrel_text PRIVATE GTest::gtest ventrel_flags)
target_include_directories(ventrel_golden PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_compile_definitions(ventrel_golden PRIVATE
    FONT_FOLDER="${VENTREL_PROGRAM_FOLDER}/fonts"
    GOLDEN_FOLDER="${CMAKE_SOURCE_DIR}/tests/golden"
    GOLDEN_OUT_FOLDER="${CMAKE_BINARY_DIR}/tests")

include(${CMAKE_SOURCE_DIR}/cmake/Fonts.cmake)
find_package(Freetype REQUIRED)

ventrel_room(ventrel_text
    font.cpp
    font_face.cpp
    font_set.cpp
    text.cpp
    text_layout.cpp
    HEADERS font.h font_face.h text.h text_layout.h
    USES ventrel_base ventrel_canvas)
target_link_libraries(ventrel_text PRIVATE Freetype::Freetype)
# Whoever draws text needs the faces beside the program.
add_dependencies(ventrel_text fonts)

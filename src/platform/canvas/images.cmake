find_package(JPEG REQUIRED)
find_package(PNG REQUIRED)

ventrel_room(ventrel_images
    image.cpp
    image_bmp.cpp
    image_jpeg.cpp
    image_pcx.cpp
    image_png.cpp
    jpeg_writer.cpp
    movie_file.cpp
    png_writer.cpp
    HEADERS channel_row.h image.h image_readers.h jpeg_writer.h movie_file.h png_writer.h
    USES ventrel_base ventrel_canvas)
target_link_libraries(ventrel_images PRIVATE JPEG::JPEG PNG::PNG)

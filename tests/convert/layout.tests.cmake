# Channel swap, transpose, mirror and duplication.
kroi_add_test(layout_test convert/swap_channels_test.cpp convert/transpose_image_test.cpp
              convert/mirror_image_test.cpp convert/dup_channels_test.cpp)
target_include_directories(layout_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})

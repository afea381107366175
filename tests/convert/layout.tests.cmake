# Channel swap, transpose, mirror and duplication.
kroi_add_test(layout_test convert/swap_channels_test.cpp convert/transpose_image_test.cpp
              convert/mirror_image_test.cpp convert/dup_channels_test.cpp)
target_include_directories(layout_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})

# The kroi commands mirror, transpose, swap and compare.
if(TARGET kroi)
  add_test(NAME kroi_layout_commands
           COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi> -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-layout
                   -P ${CMAKE_CURRENT_SOURCE_DIR}/convert/layout_kroi.cmake)
endif()

# kroi median, gauss, sobel, scharr, laplace and sharpen on the demo's input, then usage and
# filter errors.
add_test(NAME kroi_smooth COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
         -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-smooth -P ${CMAKE_CURRENT_SOURCE_DIR}/filter/smooth_kroi.cmake)

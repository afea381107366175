# Min/max filters: every member against a brute-force window reference, the buffer-size
# formula, the check orders and the fixed 3x3 64f forms.
kroi_add_test(minmax_test filter/minmax_filter_test.cpp filter/minmax_checks_test.cpp)

# kroi dilate and erode: the demo's input scene filtered with each border, then usage errors.
add_test(NAME kroi_minmax COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
         -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-minmax -P ${CMAKE_CURRENT_SOURCE_DIR}/filter/minmax_kroi.cmake)

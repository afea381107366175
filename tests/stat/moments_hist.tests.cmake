# Moments: raw moments against exact references (the 256-bit totals are compiled in from
# their header to test their rounding), getters, Hu invariants, check orders.
kroi_add_test(moments_test stat/moments_test.cpp)
target_include_directories(moments_test PRIVATE ${PROJECT_SOURCE_DIR}/src)
set_source_files_properties(stat/moments_test.cpp PROPERTIES COMPILE_OPTIONS -msse3)

# Histograms: every member against a direct count, initialisers, check orders.
kroi_add_test(histogram_test stat/histogram_test.cpp)

# kroi hist and kroi moments on the demo's input, then usage errors.
add_test(NAME kroi_momhist COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
         -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-momhist -P ${CMAKE_CURRENT_SOURCE_DIR}/stat/momhist_kroi.cmake)

# Thresholds: the fixed forms of every type and layout against their rules, check orders.
kroi_add_test(threshold_fixed_test tone/threshold_fixed_test.cpp)

# Otsu's threshold against a transcription of its sequence.
kroi_add_test(threshold_otsu_test tone/threshold_otsu_test.cpp)

# Adaptive box and Gaussian thresholds against references with explicit border synthesis.
kroi_add_test(threshold_adaptive_test tone/threshold_adaptive_test.cpp)

# kroi threshold on the demo's input and one of its channels, then usage errors.
add_test(NAME kroi_threshold COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
         -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-threshold -P ${CMAKE_CURRENT_SOURCE_DIR}/tone/threshold_kroi.cmake)

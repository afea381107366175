# Ramps and test patterns against their closed forms; noise against the generator's
# transcription and sample statistics.
kroi_add_test(pattern_test generate/pattern_test.cpp)
kroi_add_test(noise_test generate/noise_test.cpp)

# The kroi commands of unary mathematics, generation and noise.
add_test(NAME kroi_unary COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi>
         -DOUT=${CMAKE_CURRENT_BINARY_DIR}/kroi-unary -P ${CMAKE_CURRENT_SOURCE_DIR}/generate/unary_kroi.cmake)

# Copy and Set.
kroi_add_test(copyset_test convert/copy_whole_test.cpp)
kroi_add_test(copyset_masked_test convert/copy_masked_test.cpp)
kroi_add_test(copyset_channel_test convert/copy_channel_test.cpp)
kroi_add_test(copyset_planar_test convert/copy_planar_test.cpp)

# The kroi subcommands that run through the planar copies.
if(TARGET kroi)
  add_test(NAME kroi_split_merge
           COMMAND ${CMAKE_COMMAND} -DKROI=$<TARGET_FILE:kroi> -DWORK=${CMAKE_CURRENT_BINARY_DIR}/kroi_split_merge
                   -P ${CMAKE_CURRENT_SOURCE_DIR}/convert/kroi_copyset.cmake)
endif()

# Streaming paths, with the cache-size query answered by the test program itself.
kroi_add_test(copyset_stream_test convert/copy_stream_test.cpp)
set_target_properties(copyset_stream_test PROPERTIES ENABLE_EXPORTS ON)

# kroi convert and kroi scale on a small 8-bit RGB file: 8 to 16 bits and back is the identity
# with either 16-to-8 kernel, the 16-bit file really is 16-bit, --values keeps values (so 8 to
# 16 to 8 is again the identity), scale by 1 plus 0 is the identity, and bad usage exits 2.
# Run as: cmake -DKROI=<kroi> -DSAMPLE=<png> -DWORK=<dir> -P convert_kroi.cmake
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(run expect)
  execute_process(COMMAND ${KROI} ${ARGN} RESULT_VARIABLE rc OUTPUT_QUIET ERROR_QUIET)
  if(NOT rc EQUAL expect)
    message(FATAL_ERROR "kroi ${ARGN}: exit ${rc}, expected ${expect}")
  endif()
endfunction()

function(same a b)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK}/${a} ${WORK}/${b} RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${a} and ${b} differ")
  endif()
endfunction()

run(0 convert ${SAMPLE} ${WORK}/plain8.png --to 8u)
run(0 convert ${SAMPLE} ${WORK}/wide16.png --to 16u)
run(0 convert ${WORK}/wide16.png ${WORK}/back8.png --to 8u)
run(0 convert ${WORK}/wide16.png ${WORK}/fast8.png --to 8u --fast)
run(0 convert ${SAMPLE} ${WORK}/values16.png --to 16u --values)
run(0 convert ${WORK}/values16.png ${WORK}/values8.png --to 8u --values)
run(0 scale ${SAMPLE} ${WORK}/scaled8.png --mul 1 --add 0)
same(plain8.png back8.png)
same(plain8.png fast8.png)
same(plain8.png values8.png)
same(plain8.png scaled8.png)

# The bit depth byte of the header chunk.
file(READ ${WORK}/wide16.png depth OFFSET 24 LIMIT 1 HEX)
if(NOT depth STREQUAL "10")
  message(FATAL_ERROR "wide16.png has bit depth 0x${depth}, not 16")
endif()

run(2 convert ${SAMPLE} ${WORK}/x.png --to 32f)
run(2 convert ${SAMPLE} ${WORK}/x.png)
run(2 scale ${SAMPLE} ${WORK}/x.png --add 3)
run(1 convert ${WORK}/missing.png ${WORK}/x.png --to 8u)

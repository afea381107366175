# `kroi split` and `kroi merge`, run by CTest:  cmake -DKROI=<program> -DWORK=<dir> -P
# The demo writes 8-bit RGB, 16-bit RGB and 8-bit RGBA files; each is split into gray planes
# and merged back, and the merged file must equal the original byte for byte (both written
# by the same PNG writer).  Gray input, mismatched planes and wrong argument counts fail.
function(run_kroi)
  execute_process(COMMAND ${KROI} ${ARGN} WORKING_DIRECTORY ${WORK}
                  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  set(rc "${rc}" PARENT_SCOPE)
  set(err "${err}" PARENT_SCOPE)
endfunction()

function(expect_rc want what)
  if(NOT rc STREQUAL "${want}")
    message(FATAL_ERROR "${what}: exit ${rc}, expected ${want}\n${err}")
  endif()
endfunction()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
run_kroi(demo --out demo --runs 1)
expect_rc(0 "kroi demo")

foreach(pair "input;3" "scale-8u16u-c3;3" "alloc-8u-c4;4")
  list(GET pair 0 name)
  list(GET pair 1 channels)
  run_kroi(split demo/${name}.png ${name})
  expect_rc(0 "kroi split ${name}.png")
  set(planes "")
  math(EXPR last "${channels} - 1")
  foreach(c RANGE ${last})
    list(APPEND planes ${name}-${c}.png)
  endforeach()
  run_kroi(merge ${name}-merged.png ${planes})
  expect_rc(0 "kroi merge ${planes}")
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK}/${name}-merged.png ${WORK}/demo/${name}.png
                  RESULT_VARIABLE same)
  if(NOT same EQUAL 0)
    message(FATAL_ERROR "${name}: split and merged back differs from the original")
  endif()
endforeach()

run_kroi(split demo/copy-8u-c3c1-green.png gray)
expect_rc(1 "kroi split of a gray image")
run_kroi(merge bad.png input-0.png input-1.png scale-8u16u-c3-2.png)
expect_rc(1 "kroi merge of planes of different depths")
run_kroi(merge bad.png input-0.png)
expect_rc(2 "kroi merge with one plane")
run_kroi(split no-such-file.png x)
expect_rc(1 "kroi split of a missing file")

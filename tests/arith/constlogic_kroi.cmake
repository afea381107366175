# Checks of `kroi and|xor|not|shift|addc|mulc`, run by CTest:
#   cmake -DKROI=<program> -DWORK=<dir> -P constlogic_kroi.cmake
# The demo's input is the test image.  Operations that undo themselves or leave every sample
# as it was must give back the very same file, which pins the command's channel and depth
# handling end to end; bad arguments exit 2.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(kroi)
  execute_process(COMMAND ${KROI} ${ARGN} RESULT_VARIABLE rc ERROR_VARIABLE err OUTPUT_QUIET)
  set(rc "${rc}" PARENT_SCOPE)
  set(err "${err}" PARENT_SCOPE)
endfunction()

function(expect_ok)
  kroi(${ARGN})
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "kroi ${ARGN}: exit ${rc}\n${err}")
  endif()
endfunction()

function(expect_same a b what)
  file(SHA256 ${a} ha)
  file(SHA256 ${b} hb)
  if(NOT ha STREQUAL hb)
    message(FATAL_ERROR "${what}: ${b} differs from ${a}")
  endif()
endfunction()

expect_ok(demo --out ${WORK}/demo --runs 1)
set(in ${WORK}/demo/input.png)

expect_ok(not ${in} ${WORK}/not.png)
expect_ok(not ${WORK}/not.png ${WORK}/not2.png)
expect_same(${in} ${WORK}/not2.png "not twice")

expect_ok(xor ${in} 90 ${WORK}/xor.png)
expect_ok(xor ${WORK}/xor.png 90 ${WORK}/xor2.png)
expect_same(${in} ${WORK}/xor2.png "xor with 90 twice")

expect_ok(xor ${in} ${WORK}/not.png ${WORK}/xorimg.png)
expect_ok(xor ${WORK}/xorimg.png ${WORK}/not.png ${WORK}/xorimg2.png)
expect_same(${in} ${WORK}/xorimg2.png "xor with an image twice")

expect_ok(and ${in} 255 ${WORK}/and.png)
expect_same(${in} ${WORK}/and.png "and with 255")
expect_ok(and ${in} ${in} ${WORK}/andimg.png)
expect_same(${in} ${WORK}/andimg.png "and with itself")

expect_ok(shift ${in} 0 ${WORK}/shift0.png)
expect_same(${in} ${WORK}/shift0.png "shift by 0")

foreach(bad "shift;${in};x;${WORK}/bad.png" "and;${in};256;${WORK}/bad.png" "not;${in}")
  kroi(${bad})
  if(NOT rc EQUAL 2)
    message(FATAL_ERROR "kroi ${bad}: exit ${rc}, expected 2 (usage)\n${err}")
  endif()
endforeach()

# Checks of the kroi commands and, xor, not, shift, addc and mulc, run by CTest:
#   cmake -DKROI=<program> -DWORK=<dir> -P constlogic_kroi.cmake
# The inputs are the random 37 x 23 images `kroi png-roundtrip` leaves behind, 8- and 16-bit,
# gray, RGB and RGBA.  Operations that undo themselves or leave every sample as it was must
# give back the very same file, which pins each command's channel and depth handling end to
# end; gray+alpha is refused, bad arguments exit 2.
file(REMOVE_RECURSE ${WORK})

function(kroi)
  execute_process(COMMAND ${KROI} ${ARGN} RESULT_VARIABLE rc ERROR_VARIABLE err OUTPUT_QUIET)
  set(rc "${rc}" PARENT_SCOPE)
  set(err "${err}" PARENT_SCOPE)
endfunction()

function(expect_rc want)
  kroi(${ARGN})
  if(NOT rc EQUAL want)
    message(FATAL_ERROR "kroi ${ARGN}: exit ${rc}, expected ${want}\n${err}")
  endif()
endfunction()

function(expect_same a b what)
  file(SHA256 ${a} ha)
  file(SHA256 ${b} hb)
  if(NOT ha STREQUAL hb)
    message(FATAL_ERROR "${what}: ${b} differs from ${a}")
  endif()
endfunction()

expect_rc(0 png-roundtrip ${WORK})

foreach(kind 8-1 8-3 8-4 16-1 16-3 16-4)
  set(in ${WORK}/rt-${kind}-37.png)
  set(out ${WORK}/out-${kind})

  expect_rc(0 not ${in} ${out}-not.png)
  expect_rc(0 not ${out}-not.png ${out}-not2.png)
  expect_same(${in} ${out}-not2.png "not twice")

  expect_rc(0 xor ${in} 90 ${out}-xor.png)
  expect_rc(0 xor ${out}-xor.png 90 ${out}-xor2.png)
  expect_same(${in} ${out}-xor2.png "xor with 90 twice")
  expect_rc(0 xor ${in} ${out}-not.png ${out}-xi.png)
  expect_rc(0 xor ${out}-xi.png ${out}-not.png ${out}-xi2.png)
  expect_same(${in} ${out}-xi2.png "xor with an image twice")

  expect_rc(0 and ${in} ${in} ${out}-and.png)
  expect_same(${in} ${out}-and.png "and with itself")
  expect_rc(0 shift ${in} 0 ${out}-shift.png)
  expect_same(${in} ${out}-shift.png "shift by 0")
  expect_rc(0 addc ${in} 0 ${out}-addc.png)
  expect_same(${in} ${out}-addc.png "addc 0")
  expect_rc(0 mulc ${in} 4 ${out}-mulc.png 2)
  expect_same(${in} ${out}-mulc.png "mulc 4 at scale factor 2")
endforeach()

expect_rc(1 not ${WORK}/rt-8-2-37.png ${WORK}/bad.png)
expect_rc(2 shift ${WORK}/rt-8-1-37.png x ${WORK}/bad.png)
expect_rc(2 and ${WORK}/rt-8-1-37.png 256 ${WORK}/bad.png)
expect_rc(2 addc ${WORK}/rt-8-1-37.png 300 ${WORK}/bad.png)
expect_rc(2 not ${WORK}/rt-8-1-37.png)

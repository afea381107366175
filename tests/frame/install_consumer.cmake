# Installs the build into a fresh prefix and builds a small C program against it twice: with
# find_package(kroi), and with the compiler flags pkg-config gives.  Both must run and print
# the library's name.
#   cmake -DBUILD_DIR=... -DCONSUMER_DIR=... -DWORK_DIR=... -DC_COMPILER=... -DGENERATOR=... -P install_consumer.cmake
set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}\n${err}")
  endif()
  set(output "${out}" PARENT_SCOPE)
endfunction()

function(expect_name what)
  if(NOT output MATCHES "kroIP SSE3 \\(t3\\)")
    message(FATAL_ERROR "${what} printed: ${output}")
  endif()
endfunction()

run("install" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
file(GLOB_RECURSE libdirs LIST_DIRECTORIES false ${prefix}/*/libkroit3.so)
list(GET libdirs 0 lib)
get_filename_component(libdir ${lib} DIRECTORY)

# find_package
run("configure with find_package" ${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/cmake -G ${GENERATOR}
    -DCMAKE_C_COMPILER=${C_COMPILER} -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release)
run("build with find_package" ${CMAKE_COMMAND} --build ${WORK_DIR}/cmake)
run("run (find_package)" ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libdir} ${WORK_DIR}/cmake/consumer)
expect_name("find_package consumer")

# pkg-config.  The .pc file takes its prefix from where it lies, so the package works from
# wherever it was installed, with no option telling pkg-config so.
file(GLOB_RECURSE pcfiles ${prefix}/*/kroi.pc)
list(GET pcfiles 0 pc)
get_filename_component(pcdir ${pc} DIRECTORY)
run("pkg-config" ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pcdir}
    pkg-config --cflags --libs kroi)
separate_arguments(flags UNIX_COMMAND "${output}")
run("compile with pkg-config" ${C_COMPILER} ${CONSUMER_DIR}/consumer.c ${flags} -o ${WORK_DIR}/consumer_pc)
run("run (pkg-config)" ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libdir} ${WORK_DIR}/consumer_pc)
expect_name("pkg-config consumer")
message(STATUS "installed package works with find_package and pkg-config")

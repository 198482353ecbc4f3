# Installs the libraries of BUILD_DIR, then builds clients with only the installed files and runs them: the examples
# beside a virtual device, and a client with names like ours.
set(dir ${BUILD_DIR}/tests/using-the-libraries)
file(REMOVE_RECURSE ${dir})

function(run)
    execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE output COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
    set(output "${output}" PARENT_SCOPE)
endfunction()

# build(NAME SOURCES): a client with the installed package.
function(build name sources)
    if(SANITIZE)
        set(flags -DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE})
    endif()
    run(${CMAKE_COMMAND} -S ${sources} -B ${dir}/${name} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER} ${flags}
        -DCMAKE_PREFIX_PATH=${dir}/installed)
    run(${CMAKE_COMMAND} --build ${dir}/${name})
endfunction()

file(READ ${SOURCE_DIR}/docs/using-the-library.md page)
file(READ ${SOURCE_DIR}/examples/watch-signals.cpp example)
string(FIND "${page}" "```cpp\n${example}```" at)
if(at EQUAL -1)
    message(FATAL_ERROR "docs/using-the-library.md shows another watch-signals.cpp than examples/.")
endif()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${dir}/installed --component libraries)
build(examples ${SOURCE_DIR}/examples)
run(bash ${SOURCE_DIR}/tests/client/examples-test.sh ${VIRTUAL_DEVICE} ${dir}/examples)

build(client ${SOURCE_DIR}/tests/client)
run(${dir}/client/client)
if(NOT output STREQUAL "fields042")
    message(FATAL_ERROR "The client with names of its own says: ${output}")
endif()

# No macro of the libraries is left after their headers, and the headers include only installed files.
file(STRINGS ${dir}/installed/include/uavconfdetpojo/macros-on.h ours REGEX "^#define ")
run(${COMPILER} -std=c++17 -dM -E -I${dir}/installed/include/uavconfdetpojo -I${dir}/installed/include/uavdevice
    -x c++ ${dir}/installed/include/uavdevice/uavdevice.h)
foreach(line IN LISTS ours ITEMS "#define FIELDS(" "#define ENUMERATORS(")
    string(REGEX MATCH "^#define [A-Za-z_]+" macro "${line}")
    if(output MATCHES "\n${macro}[ (]")
        message(FATAL_ERROR "A client sees: ${macro}")
    endif()
endforeach()
file(GLOB_RECURSE headers ${dir}/installed/include/*.h)
foreach(header IN LISTS headers)
    file(STRINGS ${header} includes REGEX "#include.*(private/|libusb|<Q)")
    if(includes)
        message(FATAL_ERROR "${header}: ${includes}")
    endif()
endforeach()

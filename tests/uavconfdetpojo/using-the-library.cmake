# Installs the library of BUILD_DIR, then takes the example from PAGE and builds and runs it against that library,
# as somebody who has nothing else of this tree. The output must be the one on the page.
set(dir ${BUILD_DIR}/tests/using-the-library)
file(REMOVE_RECURSE ${dir})

# extract(LANGUAGE VARIABLE): the page's only block in that language.
function(extract language variable)
    file(READ ${PAGE} page)
    if(NOT "${page}" MATCHES "\n```${language}\n([^`]*)```")
        message(FATAL_ERROR "${PAGE} has no block in ${language}")
    endif()
    set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

function(run)
    execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE output COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
    set(output "${output}" PARENT_SCOPE)
endfunction()

extract(cmake cmake_lists)
extract(cpp main)
extract(text expected)
file(WRITE ${dir}/CMakeLists.txt "${cmake_lists}")
file(WRITE ${dir}/main.cpp "${main}")
if(SANITIZE)
    set(flags -DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE})
endif()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${dir}/installed --component uavconfdetpojo)
run(${CMAKE_COMMAND} -S ${dir} -B ${dir}/build -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER} ${flags}
    -DCMAKE_PREFIX_PATH=${dir}/installed)
run(${CMAKE_COMMAND} --build ${dir}/build)
run(${dir}/build/listen)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "The page promises:\n${expected}\nThe example says:\n${output}")
endif()

# No macro of the library's own outlives its headers.
file(STRINGS ${dir}/installed/include/uavconfdetpojo/macros-on.h ours REGEX "^#define ")
run(${COMPILER} -std=c++17 -dM -E -I${dir}/installed/include/uavconfdetpojo -x c++ ${dir}/main.cpp)
foreach(line IN LISTS ours ITEMS "#define FIELDS(" "#define ENUMERATORS(")
    string(REGEX MATCH "^#define [A-Za-z_]+" macro "${line}")
    if(output MATCHES "\n${macro}[ (]")
        message(FATAL_ERROR "A client sees: ${macro}")
    endif()
endforeach()

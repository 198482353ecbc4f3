# Installs the libraries of BUILD_DIR under DIR, then builds clients against them there, as somebody who has nothing else of
# this tree: the examples, and one that has names of its own like ours.
file(REMOVE_RECURSE ${DIR})

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# build(NAME SOURCES): a client with the installed package.
function(build name sources)
    if(SANITIZE)
        set(flags -DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE})
    endif()
    run(${CMAKE_COMMAND} -S ${sources} -B ${DIR}/${name} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER} ${flags}
        -DPKG_CONFIG_EXECUTABLE=${PKG_CONFIG} -DCMAKE_PREFIX_PATH=${DIR}/installed)
    run(${CMAKE_COMMAND} --build ${DIR}/${name})
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${DIR}/installed --component libraries)
build(examples ${SOURCE_DIR}/examples)
build(client ${SOURCE_DIR}/tests/client)
file(TOUCH ${DIR}/built)

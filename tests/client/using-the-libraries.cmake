# Checks what was installed and built under DIR: the example in the documentation, a client with names like ours, and the
# installed headers.
file(READ ${SOURCE_DIR}/docs/using-the-library.md page)
file(READ ${SOURCE_DIR}/examples/watch-signals.cpp example)
string(FIND "${page}" "```cpp\n${example}```" at)
if(at EQUAL -1)
    message(FATAL_ERROR "docs/using-the-library.md shows another watch-signals.cpp than examples/.")
endif()

execute_process(COMMAND ${EMULATOR} ${DIR}/client/client OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(NOT output STREQUAL "fields042")
    message(FATAL_ERROR "The client with names of its own says: ${output}")
endif()

# No macro of the libraries is left after their headers, and the headers include only installed files.
file(STRINGS ${DIR}/installed/include/uavconfdetpojo/macros-on.h ours REGEX "^#define ")
execute_process(
    COMMAND ${COMPILER} -std=c++17 -dM -E -I${DIR}/installed/include/uavconfdetpojo -I${DIR}/installed/include/uavdevice
            -x c++ ${DIR}/installed/include/uavdevice/uavdevice.h
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
foreach(line IN LISTS ours ITEMS "#define FIELDS(" "#define ENUMERATORS(")
    string(REGEX MATCH "^#define [A-Za-z_]+" macro "${line}")
    if(output MATCHES "\n${macro}[ (]")
        message(FATAL_ERROR "A client sees: ${macro}")
    endif()
endforeach()
file(GLOB_RECURSE headers ${DIR}/installed/include/*.h)
foreach(header IN LISTS headers)
    file(STRINGS ${header} includes REGEX "#include.*(private/|libusb|<Q)")
    if(includes)
        message(FATAL_ERROR "${header}: ${includes}")
    endif()
endforeach()

# Runs PROGRAM on SCRIPT and compares what it prints with the file EXPECTED; names the first line
# that differs.
execute_process(COMMAND ${PROGRAM} ${SCRIPT} OUTPUT_VARIABLE printed ERROR_VARIABLE errors RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${SCRIPT} ended with ${status}\n${errors}")
endif()
file(READ ${EXPECTED} wanted)
if(printed STREQUAL wanted)
    return()
endif()

# Brackets and semicolons would break a text into list items in their own way.
foreach(text printed wanted)
    string(REGEX REPLACE "[][;]" "." ${text} "${${text}}")
    string(REPLACE "\n" ";" ${text} "${${text}}")
endforeach()
set(line 0)
foreach(one other IN ZIP_LISTS wanted printed)
    math(EXPR line "${line} + 1")
    if(NOT one STREQUAL other)
        message(FATAL_ERROR "${EXPECTED}:${line}: wanted\n  ${one}\nbut ${SCRIPT} printed\n  ${other}")
    endif()
endforeach()
message(FATAL_ERROR "${SCRIPT} prints other bytes than ${EXPECTED}")

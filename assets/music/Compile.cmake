# One piece of music. abc2midi ends well whatever it has read: what it complains of is a fault here.

execute_process(COMMAND ${ABC2MIDI} ${NOTES} -quiet -o ${TARGET}
    OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR said MATCHES "Error|Warning")
    file(REMOVE ${TARGET})
    message(FATAL_ERROR "${NOTES}:\n${said}")
endif()

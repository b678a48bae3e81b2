# Runs qorvbs on a script with a given standard input and compares its
# standard output, standard error and exit status with the expected ones.
execute_process(COMMAND ${QORVBS} ${SCRIPT}
                INPUT_FILE ${INPUT}
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
file(READ ${EXPECTED_OUT} want_out)
file(READ ${EXPECTED_ERR} want_err)
if(NOT out STREQUAL want_out)
  message(FATAL_ERROR "standard output differs:\n${out}\nexpected:\n${want_out}")
endif()
if(NOT err STREQUAL want_err)
  message(FATAL_ERROR "standard error differs:\n${err}\nexpected:\n${want_err}")
endif()
if(NOT status EQUAL ${EXPECTED_STATUS})
  message(FATAL_ERROR "exit status ${status}, expected ${EXPECTED_STATUS}")
endif()

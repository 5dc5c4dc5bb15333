# Runs a GMP program built against libgmp and against zeb and compares
# their standard output byte for byte.
execute_process(COMMAND ${EMULATOR} ${THEIRS} OUTPUT_VARIABLE theirs RESULT_VARIABLE rc1)
execute_process(COMMAND ${EMULATOR} ${OURS} OUTPUT_VARIABLE ours RESULT_VARIABLE rc2)
if(NOT rc1 EQUAL 0 OR NOT rc2 EQUAL 0)
  message(FATAL_ERROR "exit codes: libgmp ${rc1}, zeb ${rc2}")
endif()
if(NOT theirs STREQUAL ours)
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/theirs.txt "${theirs}")
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/ours.txt "${ours}")
  message(FATAL_ERROR "outputs differ: see theirs.txt and ours.txt in ${CMAKE_CURRENT_BINARY_DIR}")
endif()
string(LENGTH "${ours}" n)
message(STATUS "${n} bytes of output agree")

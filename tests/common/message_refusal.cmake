# Compiles one case of message_refusal.cpp: case 0 must compile, any other must
# be refused by the check of the message's text.
execute_process(
  COMMAND ${COMPILER} -std=c++20 -fsyntax-only -DCASE=${CASE} -I${ROOT} -I${ROOT}/include
    ${ROOT}/tests/common/message_refusal.cpp
  RESULT_VARIABLE result
  OUTPUT_VARIABLE said
  ERROR_VARIABLE said)
if(CASE EQUAL 0)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "messages that fit their values are refused (${result}):\n${said}")
  endif()
elseif(result EQUAL 0)
  message(FATAL_ERROR "case ${CASE} compiles")
elseif(NOT said MATCHES "TextDoesNotFitItsValues")
  message(FATAL_ERROR "case ${CASE} is refused for another reason:\n${said}")
endif()

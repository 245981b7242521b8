# Compiles an interface description:
# cmake -DWIDL= -DLIBRARIES= -DIDL= -DOUTPUT= -DKIND=(-t|-h) -DBITS=(-m64|-m32) -P CompileIdl.cmake
#
# The compiler goes on after what it warns of, with a type library that is not what the description says.
execute_process(COMMAND ${WIDL} -I /usr/include/wine/wine/windows -L ${LIBRARIES} ${BITS} ${KIND} -o ${OUTPUT} ${IDL}
                RESULT_VARIABLE result ERROR_VARIABLE said)
if(NOT result EQUAL 0 OR NOT said STREQUAL "")
  file(REMOVE ${OUTPUT})
  message(FATAL_ERROR "${IDL}: ${said}")
endif()

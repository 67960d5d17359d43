function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE text ERROR_VARIABLE text)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}:\n${text}")
    endif()
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/installed)
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${SCRATCH}/build -G ${GENERATOR}
    -D CMAKE_PREFIX_PATH=${SCRATCH}/installed "-DCMAKE_C_FLAGS=${C_FLAGS}")
run(${CMAKE_COMMAND} --build ${SCRATCH}/build)
run(${SCRATCH}/build/consumer)

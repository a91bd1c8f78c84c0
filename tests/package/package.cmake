set(place "${BUILT}/package")
file(REMOVE_RECURSE "${place}")

execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILT}" --prefix "${place}/installed"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -S "${HOST}" -B "${place}/host" -G Ninja -DCMAKE_CXX_COMPILER=${COMPILER}
  -DCMAKE_PREFIX_PATH=${place}/installed
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build "${place}/host" COMMAND_ERROR_IS_FATAL ANY)

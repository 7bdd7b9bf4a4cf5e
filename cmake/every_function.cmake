# Gives a target the table of all functions, which is made from the public headers.
function(add_every_function target)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    set(table ${CMAKE_CURRENT_BINARY_DIR}/every_function_table.cpp)
    set(script ${PROJECT_SOURCE_DIR}/scripts/generate-function-table)
    file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/tandekor/*.h)
    add_custom_command(OUTPUT ${table} COMMAND Python3::Interpreter ${script} ${table}
                       DEPENDS ${script} ${PROJECT_SOURCE_DIR}/scripts/public_headers.py ${headers})
    set_source_files_properties(${table} PROPERTIES COMPILE_OPTIONS -O0)  # one long list, of which nothing is gained
    target_sources(${target} PRIVATE ${table})
endfunction()

# Makes a shared library a DLL to deploy: it exports what its headers declare, by an export list that also makes an
# import library for the MSVC linker, needs none of the compiler's DLLs, and has its version as a resource.
enable_language(RC)
find_program(DLLTOOL llvm-dlltool)
set(import_machine_4 i386)
set(import_machine_8 i386:x86-64)

# make_dll(TARGET PREFIXES HEADER ...): PREFIXES are those of the exported names, as "A" or "A|B".
function(make_dll target prefixes)
    set(dll ${target}.dll)
    set(names "")
    foreach(header IN LISTS ARGN)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
        file(STRINGS ${header} declarations REGEX "^ *[A-Z]+_API .*(${prefixes})_[A-Za-z0-9_]+\\(")
        foreach(declaration IN LISTS declarations)
            string(REGEX REPLACE "^[^(]*[ *]((${prefixes})_[A-Za-z0-9_]+)\\(.*" "    \\1\n" name "${declaration}")
            string(APPEND names "${name}")
        endforeach()
    endforeach()
    set(definition ${PROJECT_BINARY_DIR}/${target}.def)
    file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${dll}\nEXPORTS\n${names}")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
    target_sources(${target} PRIVATE ${definition} ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_target_properties(${target} PROPERTIES PREFIX "")
    target_link_options(${target} PRIVATE -static)
    if(DLLTOOL)
        add_custom_command(TARGET ${target} POST_BUILD VERBATIM BYPRODUCTS ${PROJECT_BINARY_DIR}/${target}.lib
                           COMMAND ${DLLTOOL} -m ${import_machine_${CMAKE_SIZEOF_VOID_P}} -D ${dll} -d ${definition}
                                   -l ${PROJECT_BINARY_DIR}/${target}.lib)
    endif()
endfunction()

# What programs for Windows carry inside them, and the libraries that stand beside them.

# vemo_windows_resources(TARGET): icon, version and what the program expects of the system.
function(vemo_windows_resources target)
    set(PROGRAM ${target})
    configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${target}.rc @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
endfunction()

# A link to what the compiler's own programs need, so that tests find it in one place.
function(vemo_compiler_libraries result)
    set(paths)
    foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        if(NOT IS_ABSOLUTE ${path})
            message(FATAL_ERROR "${CMAKE_CXX_COMPILER} does not know where its ${name} is")
        endif()
        file(CREATE_LINK ${path} ${CMAKE_BINARY_DIR}/runtime/${name} SYMBOLIC)
        list(APPEND paths ${path})
    endforeach()
    set(${result} ${paths} PARENT_SCOPE)
endfunction()

# The libraries and plug-ins of an installed game.
function(vemo_install_libraries)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/runtime)
    vemo_compiler_libraries(compiler_libraries)
    install(FILES ${compiler_libraries} DESTINATION .)
    foreach(library Core Gui Widgets PrintSupport)
        install(FILES $<TARGET_FILE:Qt6::${library}> DESTINATION .)
    endforeach()
    install(FILES $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin> DESTINATION platforms)
    install(FILES $<TARGET_FILE:Qt6::QWindowsVistaStylePlugin> DESTINATION styles)
    install(FILES $<TARGET_FILE:Qt6::QICOPlugin> DESTINATION imageformats)
endfunction()

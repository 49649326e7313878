# The program folder: what the game reads beside its executable. In the build tree it is the folder
# `assets` there, made of links; an installed game has the same in its share folder.
include(GNUInstallDirs)

file(GLOB level_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/assets/levels/Sudoku_*.sds)
file(GLOB sound_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/assets/sounds/*.wav)

# A link to the whole folder, as it was made once, would lead back into the sources.
if(IS_SYMLINK ${VEMO_BUILT_ASSETS})
    file(REMOVE ${VEMO_BUILT_ASSETS})
endif()
file(MAKE_DIRECTORY ${VEMO_BUILT_ASSETS})
foreach(path ${level_files} ${CMAKE_SOURCE_DIR}/assets/sounds ${CMAKE_SOURCE_DIR}/assets/help)
    get_filename_component(name ${path} NAME)
    file(CREATE_LINK ${path} ${VEMO_BUILT_ASSETS}/${name} COPY_ON_ERROR SYMBOLIC)
endforeach()

install(TARGETS vemosud RUNTIME)
set(cli_folder ${CMAKE_BINARY_DIR}/src/cli)
install(FILES ${cli_folder}/vemosud.man RENAME vemosud.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${cli_folder}/vemosud.bash-completion RENAME vemosud
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
if(VEMO_QT)
    set(data ${CMAKE_INSTALL_DATADIR})
    install(TARGETS vemosud2 RUNTIME)
    install(FILES ${level_files} DESTINATION ${data}/vemosud2)
    install(FILES ${sound_files} DESTINATION ${data}/vemosud2/sounds)
    install(DIRECTORY assets/help DESTINATION ${data}/vemosud2)
    foreach(side 16 32 48 64 128 256)
        install(FILES assets/icons/vemosud2-${side}.png RENAME vemosud2.png
                DESTINATION ${data}/icons/hicolor/${side}x${side}/apps)
    endforeach()
    install(FILES assets/icons/vemosud2.svg DESTINATION ${data}/icons/hicolor/scalable/apps)
    install(FILES assets/vemosud2.desktop DESTINATION ${data}/applications)
endif()

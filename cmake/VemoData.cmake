# The program folder: what the game reads beside its executable. In the build tree it is the folder
# `assets` there, made of links; an installed game has the same in its share folder.
include(GNUInstallDirs)

file(GLOB level_files ${CMAKE_SOURCE_DIR}/assets/levels/Sudoku_*.sds)

# A link to the whole folder, as it was made once, would lead back into the sources.
if(IS_SYMLINK ${VEMO_BUILT_ASSETS})
    file(REMOVE ${VEMO_BUILT_ASSETS})
endif()
file(MAKE_DIRECTORY ${VEMO_BUILT_ASSETS})
foreach(path ${level_files} ${CMAKE_SOURCE_DIR}/assets/sounds ${CMAKE_SOURCE_DIR}/assets/help)
    get_filename_component(name ${path} NAME)
    file(CREATE_LINK ${path} ${VEMO_BUILT_ASSETS}/${name} COPY_ON_ERROR SYMBOLIC)
endforeach()

# An installed game stands in one folder on Windows, and in the folders for games elsewhere.
if(WIN32)
    set(games_folder .)
    set(tools_folder .)
    set(program_folder .)
else()
    set(games_folder games)
    set(tools_folder ${CMAKE_INSTALL_BINDIR})
    set(program_folder ${CMAKE_INSTALL_DATADIR}/games/vemosud2)
endif()
install(TARGETS vemosud RUNTIME DESTINATION ${tools_folder})
if(VEMO_QT)
    install(TARGETS vemosud2 RUNTIME DESTINATION ${games_folder})
    install(FILES ${level_files} DESTINATION ${program_folder})
    install(DIRECTORY assets/sounds DESTINATION ${program_folder} FILES_MATCHING PATTERN *.wav)
    install(DIRECTORY assets/help DESTINATION ${program_folder})
endif()

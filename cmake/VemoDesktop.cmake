# What an installed game needs on a desktop of Unix: manual pages, icons, menu entry, kinds of files.
# `cpack -G DEB` makes a Debian package of it all.
set(data ${CMAKE_INSTALL_DATADIR})
set(debian ${CMAKE_SOURCE_DIR}/packaging/debian)

# packed(SOURCE NAME FOLDER): installed as NAME.gz, the same bytes in every build.
function(packed source name folder)
    set(file ${CMAKE_BINARY_DIR}/packed/${name}.gz)
    add_custom_command(OUTPUT ${file} COMMAND gzip -9nc ${source} > ${file} DEPENDS ${source} VERBATIM)
    add_custom_target(packed_${name} ALL DEPENDS ${file})
    install(FILES ${file} DESTINATION ${folder})
endfunction()
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packed)

set(cli_folder ${CMAKE_BINARY_DIR}/src/cli)
packed(${cli_folder}/vemosud.man vemosud.1 ${CMAKE_INSTALL_MANDIR}/man1)
add_dependencies(packed_vemosud.1 vemosud_docs)
install(FILES ${cli_folder}/vemosud.bash-completion RENAME vemosud
        DESTINATION ${data}/bash-completion/completions)
if(NOT VEMO_QT)
    return()
endif()

packed(${debian}/vemosud2.6 vemosud2.6 ${CMAKE_INSTALL_MANDIR}/man6)
foreach(side 16 32 48 64 128 256)
    install(FILES assets/icons/vemosud2-${side}.png RENAME vemosud2.png
            DESTINATION ${data}/icons/hicolor/${side}x${side}/apps)
endforeach()
install(FILES assets/icons/vemosud2.svg DESTINATION ${data}/icons/hicolor/scalable/apps)
install(FILES assets/vemosud2.desktop DESTINATION ${data}/applications)
install(FILES assets/vemosud2.xml DESTINATION ${data}/mime/packages)
install(FILES assets/example.vemo.sudoku2.metainfo.xml DESTINATION ${data}/metainfo)

# The Debian package.
packed(${debian}/changelog changelog ${data}/doc/vemosud2)
install(FILES ${debian}/copyright DESTINATION ${data}/doc/vemosud2)

set(CPACK_PACKAGE_VENDOR "Vemo Sudoku 2 developers")
set(CPACK_PACKAGE_CONTACT "Vemo Sudoku 2 developers <sudoku@vemo.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Sudoku with hints that explain each step")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Vemo Sudoku 2 is a Sudoku game around a logic solver. It finds the next
human step, names it, explains it and shows it on the board; it rates every
puzzle by the hardest step that the puzzle needs, and times you against your
own best. Nine levels of puzzles come with it, and it makes new ones.
.
The package holds the command line program vemosud as well, which solves,
rates, makes and converts lists of puzzles.")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://vemo.example/sudoku")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
include(CPack)

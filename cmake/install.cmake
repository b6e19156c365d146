# cmake --install: all places are relative to the prefix.
include(GNUInstallDirs)
set(share ${CMAKE_INSTALL_DATADIR}/morvane)

install(TARGETS morvane RUNTIME)
install(FILES README.md CHANGELOG.md LICENSE TYPE DOC)
install(DIRECTORY docs TYPE DOC FILES_MATCHING # README.md links to docs/
    PATTERN "*.md" PATTERN "chapters" EXCLUDE PATTERN "man" EXCLUDE)
install(DIRECTORY examples DESTINATION ${share})
install(DIRECTORY editors DESTINATION ${share})
install(FILES completions/morvane.bash RENAME morvane
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES completions/morvane.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)

# The manual page is compressed as Debian wants it: best, and without a time in it.
find_program(MORVANE_GZIP gzip)
if(MORVANE_GZIP)
    install(CODE "
        execute_process(COMMAND \"${MORVANE_GZIP}\" -9nc \"${PROJECT_SOURCE_DIR}/docs/man/morvane.1\"
            OUTPUT_FILE \"${PROJECT_BINARY_DIR}/morvane.1.gz\" COMMAND_ERROR_IS_FATAL ANY)
        file(INSTALL \"${PROJECT_BINARY_DIR}/morvane.1.gz\"
            DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_MANDIR}/man1\")")
else()
    install(FILES docs/man/morvane.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

# zsh looks for the completions of packages, below /usr, and for those of the place elsewhere.
install(CODE "
    set(folder site-functions)
    if(CMAKE_INSTALL_PREFIX MATCHES \"/usr/?$\")
        set(folder vendor-completions)
    endif()
    file(INSTALL \"${PROJECT_SOURCE_DIR}/completions/_morvane\"
        DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/zsh/\${folder}\")")

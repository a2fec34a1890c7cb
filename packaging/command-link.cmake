# Makes the program a command: a link among the commands leads to it in its folder.
file(MAKE_DIRECTORY "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/bin")
file(CREATE_LINK ../lib/quexal-editor/quexal-editor "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/bin/quexal-editor" SYMBOLIC)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${CMAKE_INSTALL_PREFIX}/bin/quexal-editor")

# Puts the word list among the settings of the machine and a link to it beside the program, which reads it there. Runs
# when the program is installed, since only then the prefix is known.
set(program_folder "${CMAKE_INSTALL_PREFIX}/lib/quexal-editor")
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    # The system's settings. A link that leaves its top-level folder is absolute in a Debian package.
    set(settings /etc/quexal-editor)
    set(target ${settings}/qx_lower.txt)
else()
    set(settings "${CMAKE_INSTALL_PREFIX}/etc/quexal-editor")
    set(target ../../etc/quexal-editor/qx_lower.txt)
endif()
if(EXISTS "$ENV{DESTDIR}${settings}/qx_lower.txt")
    message(STATUS "Keeping: $ENV{DESTDIR}${settings}/qx_lower.txt")
else()
    file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/../data/qx_lower.txt" DESTINATION "${settings}")
endif()
file(CREATE_LINK ${target} "$ENV{DESTDIR}${program_folder}/qx_lower.txt" SYMBOLIC)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${program_folder}/qx_lower.txt")

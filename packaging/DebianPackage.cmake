# The Debian package: cpack -G DEB in the folder of a release build that was configured for the prefix /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillaby)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_CONTACT "The Quillaby System developers <developers@quillaby.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Modes of files and folders do not hang on the one who builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/compress.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The library of the print service is opened when something is printed, so nothing finds it by itself; without it the
# program saves PDF files. Printouts use the font of the other.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libcups2, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Desktop file, icons, file types and page of the manual need no script: who keeps a list of them watches their folders.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Quillaby System keeps the past draws of your lottery, any game that draws
1 to 10 different numbers out of 1 to 60. It counts how often and how
recently each number came and shows the counts as lists and charts.
.
It makes random sets of numbers to play, compares your own numbers with
every past draw, keeps a statement of what you spent and won, and prints
everything or saves it as PDF. No set of numbers is more likely to win than
another: the program is for those who enjoy the numbers all the same.")

include(CPack)

# The Debian package, made by cpack of what is installed (scripts/package).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kelm-vantri)
set(CPACK_PACKAGE_CONTACT ${KV_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "card game of drawing towards 20, alone or over a network")
set(CPACK_PACKAGE_HOMEPAGE_URL https://kelm-vantri.example)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The sound library is loaded by name once the first window stands: no tool sees that.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsdl2-2.0-0")
# Wayland's own windows, and what opens a folder or an address. X11, GIF and JPEG come with libqt6gui6.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Two sides draw cards from 1 to 10 towards 20 and bend their totals with a
hand of four side cards that must last for the whole match. Whoever is closer
to 20 when both have stood wins the set; three sets win the match.
.
There are an arcade mode for a high score, a campaign with stakes, a shop and
a deck of your own, and matches against a friend over the network. The
computer has two strategies, the game two looks, and all of it can be played
with the keyboard alone.
.
vantri-peer, an opponent without windows for practising network games, is
included.")
include(CPack)

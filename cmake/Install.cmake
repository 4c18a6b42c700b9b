# What is installed, and where. The programs look for their data in share/kelm-vantri, seen from where they are, so
# the whole may be moved to another place.
option(KV_DEBIAN "Install what only a Debian package has: its change log, notes for its checker" OFF)

if("$CACHE{CMAKE_INSTALL_DOCDIR}" STREQUAL "")
  set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/kelm-vantri)
endif()
set(data ${CMAKE_INSTALL_DATADIR}/kelm-vantri)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
set(built ${PROJECT_BINARY_DIR}/bin)
set(packaging ${PROJECT_BINARY_DIR}/packaging)

# The day of the release stands in the first heading of the change log, and nowhere else.
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md heading REGEX "^## " LIMIT_COUNT 1)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
if(NOT heading MATCHES "^## ([0-9.]+) \\(([0-9]+-[0-9]+-[0-9]+)\\)$" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "CHANGELOG.md does not begin with version ${PROJECT_VERSION} and its day: ${heading}")
endif()
set(KV_RELEASE_DATE ${CMAKE_MATCH_2})
set(KV_CONTACT "The Kelm Vantri authors <authors@kelm-vantri.example>")

install(TARGETS vantri vantri-peer RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${built}/vntdata.dat ${built}/bnkgothicL.ttf ${built}/bnkgothicM.ttf
              ${PROJECT_SOURCE_DIR}/packaging/OFL.txt DESTINATION ${data})
install(DIRECTORY ${built}/Sounds DESTINATION ${data} FILES_MATCHING PATTERN "*.wav")
install(DIRECTORY ${built}/Icons DESTINATION ${data} FILES_MATCHING PATTERN "*.png")

foreach(size 16 24 32 48 64 128 256 512)
  install(FILES ${built}/Icons/kelm-vantri-${size}.png DESTINATION ${icons}/${size}x${size}/apps
          RENAME kelm-vantri.png)
endforeach()
install(FILES ${built}/Icons/kelm-vantri.svg DESTINATION ${icons}/scalable/apps)
install(FILES ${built}/Icons/kelm-vantri-symbolic.svg DESTINATION ${icons}/symbolic/apps)

configure_file(packaging/metainfo.xml.in ${packaging}/org.kelm_vantri.vantri.metainfo.xml @ONLY)
install(FILES packaging/kelm-vantri.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/org.kelm_vantri.vantri.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# kv_compress(file): adds a compressed copy, without name and time inside, to `compressed`.
function(kv_compress file)
  add_custom_command(OUTPUT ${file}.gz COMMAND gzip -9 -n -k -f ${file} DEPENDS ${file} VERBATIM)
  set(compressed ${compressed} ${file}.gz PARENT_SCOPE)
endfunction()

foreach(program vantri vantri-peer)
  configure_file(packaging/${program}.6.in ${packaging}/${program}.6 @ONLY)
  kv_compress(${packaging}/${program}.6)
  install(FILES ${packaging}/${program}.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
endforeach()

install(FILES README.md CHANGELOG.md packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(KV_DEBIAN)
  # Debian has the text of the licence in "copyright".
  execute_process(COMMAND date -u -R -d ${KV_RELEASE_DATE} OUTPUT_VARIABLE KV_RELEASE_TIME
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  configure_file(packaging/changelog.in ${packaging}/changelog @ONLY)
  kv_compress(${packaging}/changelog)
  install(FILES ${packaging}/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})
  install(FILES packaging/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
          RENAME kelm-vantri)
else()
  install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

add_custom_target(pages ALL DEPENDS ${compressed})
# All that is installed, and nothing else.
add_custom_target(game)
add_dependencies(game vantri vantri-peer vntdata sounds fonts icons pages)

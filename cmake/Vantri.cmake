# Build rules that every folder shares.
#
# A folder of src/ becomes one or two static libraries. Rules folders (cards, ai, profile, match, history, campaign) are
# split: files named frm… or ctl… may use Qt and go to kv_<folder>_ui; all others go to kv_<folder>, which
# never sees Qt's include paths. In platform/ the real forms (Qt…, Sdl…) go to kv_platform_ui.

add_library(kv_options INTERFACE)
target_include_directories(kv_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(kv_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
if(KV_WERROR)
  target_compile_options(kv_options INTERFACE -Werror)
endif()
# gcc 12 warns wrongly of overlapping copies in std::string's operator+ (GCC bug 105651).
target_compile_options(kv_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# A target with KV_UNCHECKED is compiled as it is: what paints the pictures is not what the sanitizers look at. One with
# KV_MEMORY_ONLY goes without the checks for undefined behaviour: in the tests' own code they double what it costs to
# compile, and the code that is to be checked is in the libraries.
set(kv_checked $<NOT:$<BOOL:$<TARGET_PROPERTY:KV_UNCHECKED>>>)
set(kv_checked_fully $<AND:${kv_checked},$<NOT:$<BOOL:$<TARGET_PROPERTY:KV_MEMORY_ONLY>>>>)
if(KV_SANITIZE)
  target_compile_options(kv_options INTERFACE
    "$<${kv_checked}:-fsanitize=address;-fno-sanitize-recover=all;-fno-omit-frame-pointer>"
    "$<${kv_checked_fully}:-fsanitize=undefined>")
  target_link_options(kv_options INTERFACE -fsanitize=address,undefined)
endif()
if(KV_FUZZ)
  target_compile_options(kv_options INTERFACE
    "$<${kv_checked}:-fsanitize=fuzzer-no-link,address,undefined;-fno-sanitize-recover=all>")
  target_link_options(kv_options INTERFACE -fsanitize=address,undefined)
endif()

# kv_add_floor(name): declares the libraries of src/<name>.
function(kv_add_floor name)
  set(folder ${PROJECT_SOURCE_DIR}/src/${name})
  file(GLOB all CONFIGURE_DEPENDS ${folder}/*.cpp)
  if(name STREQUAL "presentation" OR name STREQUAL "screens" OR name STREQUAL "app")
    set(ui ${all})
  else()
    set(ui ${all})
    list(FILTER ui INCLUDE REGEX "/(frm|ctl|Qt|Sdl)[^/]*\\.cpp$")
  endif()
  set(plain ${all})
  list(REMOVE_ITEM plain ${ui} ${folder}/main.cpp)
  list(REMOVE_ITEM ui ${folder}/main.cpp)
  if(plain)
    add_library(kv_${name} STATIC ${plain})
    target_link_libraries(kv_${name} PUBLIC kv_options)
    kv_precompiled(kv_${name} plain)
    kv_join_sources(kv_${name})
  else()
    add_library(kv_${name} INTERFACE)
    target_link_libraries(kv_${name} INTERFACE kv_options)
  endif()
  if(ui)
    add_library(kv_${name}_ui STATIC ${ui})
    target_link_libraries(kv_${name}_ui PUBLIC kv_${name} kv_options Qt6::Widgets)
    target_compile_definitions(kv_${name}_ui PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
    kv_precompiled(kv_${name}_ui ui)
    kv_join_sources(kv_${name}_ui)
  else()
    add_library(kv_${name}_ui INTERFACE)
    target_link_libraries(kv_${name}_ui INTERFACE kv_${name} kv_options)
  endif()
endfunction()

# The one source that is told the version: not every source is compiled anew when it changes.
set_source_files_properties(${PROJECT_SOURCE_DIR}/src/platform/Version.cpp
  PROPERTIES COMPILE_DEFINITIONS KV_VERSION="${PROJECT_VERSION}" SKIP_PRECOMPILE_HEADERS ON)
# And the one that is told where the installed data lies, seen from the program.
file(RELATIVE_PATH data_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/kelm-vantri)
set_source_files_properties(${PROJECT_SOURCE_DIR}/src/platform/Folders.cpp
  PROPERTIES COMPILE_DEFINITIONS KV_DATA_FROM_PROGRAM="${data_from_program}" SKIP_PRECOMPILE_HEADERS ON)

# kv_floor_uses(name [lib...]): links every library of a floor to the libraries below it.
function(kv_floor_uses target)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_link_libraries(${target} INTERFACE ${ARGN})
  else()
    target_link_libraries(${target} PUBLIC ${ARGN})
  endif()
endfunction()

# kv_link_floors(): a floor links only the floors below it.
function(kv_link_floors)
  kv_floor_uses(kv_cards kv_platform)
  kv_floor_uses(kv_ai kv_cards)
  kv_floor_uses(kv_profile kv_cards)
  kv_floor_uses(kv_match kv_ai kv_profile)
  kv_floor_uses(kv_cards_ui kv_platform_ui)
  kv_floor_uses(kv_presentation_ui kv_cards_ui kv_profile kv_layouts)
  kv_floor_uses(kv_match_ui kv_match kv_presentation_ui)
  kv_floor_uses(kv_history kv_match)
  target_link_libraries(kv_history PRIVATE SQLite::SQLite3)
  kv_floor_uses(kv_history_ui kv_match_ui)
  kv_floor_uses(kv_campaign kv_match)
  kv_floor_uses(kv_screens kv_match)
  kv_floor_uses(kv_screens_ui kv_match_ui)
  kv_floor_uses(kv_campaign_ui kv_match_ui)
  kv_floor_uses(kv_network kv_campaign)
  kv_floor_uses(kv_network_ui kv_campaign_ui kv_screens_ui)
  kv_floor_uses(kv_app_ui kv_screens_ui kv_network_ui kv_history_ui)
  kv_embed_layouts()
  kv_add_program()
  if(TARGET kv_platform_ui)
    # Only the sound library's headers: it is loaded itself by name after the first window stands.
    pkg_check_modules(SDL2 REQUIRED IMPORTED_TARGET sdl2)
    target_include_directories(kv_platform_ui SYSTEM PRIVATE ${SDL2_INCLUDE_DIRS})
    # The toolkit has it open already; it is told to read its configuration beforehand.
    pkg_check_modules(FONTCONFIG REQUIRED IMPORTED_TARGET fontconfig)
    target_link_libraries(kv_platform_ui PRIVATE PkgConfig::FONTCONFIG)
    # Without its headers for the toolkit's own use the size of everything is fixed.
    target_link_libraries(kv_platform_ui PRIVATE $<TARGET_NAME_IF_EXISTS:Qt6::GuiPrivate>)
    kv_floor_uses(kv_platform_ui ${CMAKE_DL_LIBS} Qt6::Network)
  endif()
endfunction()

# kv_embed_layouts(): every src/**/<screen>.json, and the read-me, is compiled in as text, found by its base name
# with kv::LayoutText.
function(kv_embed_layouts)
  file(GLOB_RECURSE layouts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.json)
  list(APPEND layouts ${PROJECT_SOURCE_DIR}/README.md)  # its chapters are the rules inside the program
  set(out ${PROJECT_BINARY_DIR}/layouts/LayoutText.cpp)
  add_custom_command(
    OUTPUT ${out}
    COMMAND ${CMAKE_COMMAND} -DOUT=${out} -DVERSION=${PROJECT_VERSION} "-DLAYOUTS=${layouts}" -P ${PROJECT_SOURCE_DIR}/cmake/EmbedLayouts.cmake
    DEPENDS ${layouts} ${PROJECT_SOURCE_DIR}/cmake/EmbedLayouts.cmake
    COMMENT "Embedding screen layouts"
    VERBATIM)
  add_library(kv_layouts STATIC ${out})
  target_link_libraries(kv_layouts PUBLIC kv_options)
endfunction()

# kv_test_code(target): code that tests or shows the game. Under the sanitizers, optimizing it costs more time than it
# saves.
function(kv_test_code target)
  set_target_properties(${target} PROPERTIES KV_MEMORY_ONLY ON)
  target_compile_options(${target} PRIVATE $<$<BOOL:${KV_SANITIZE}>:-O0>)
endfunction()

add_custom_target(tests)  # all test programs, with what they use

# kv_add_test(folder [lib...]): one test program for tests/<folder>.
function(kv_add_test folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp)
  if(sources)
    add_executable(test-${folder} ${sources})
    target_include_directories(test-${folder} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(test-${folder} PRIVATE ${ARGN} GTest::gmock)
    kv_test_code(test-${folder})
    kv_precompiled(test-${folder} test)
    add_dependencies(tests test-${folder})
    kv_join_sources(test-${folder})
    add_test(NAME ${folder} COMMAND test-${folder})
    # The leak check of gcc 12 stumbles over the thread storage of plugins that were loaded by name, when it has
    # watched how they ask for it; what it finds is the same without.
    set_tests_properties(${folder} PROPERTIES ENVIRONMENT "ASAN_OPTIONS=intercept_tls_get_addr=0;QT_QPA_PLATFORM=offscreen;SDL_AUDIODRIVER=dummy;KV_ASSETS=${PROJECT_BINARY_DIR}/bin")
  endif()
endfunction()

# kv_add_program(): the game itself, beside its data.
function(kv_add_program)
  add_executable(vantri ${PROJECT_SOURCE_DIR}/src/app/main.cpp)
  target_link_libraries(vantri PRIVATE kv_app_ui)
  set_target_properties(vantri PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endfunction()

set(KV_ART ${PROJECT_SOURCE_DIR}/art CACHE PATH "Pictures and sounds that take the place of the game's own")

# kv_art_stamp(kind out): sets `out` to a file that changes with the files of art/<kind>/. Every build looks.
function(kv_art_stamp kind out)
  set(stamp ${PROJECT_BINARY_DIR}/art-${kind}.stamp)
  add_custom_target(art-${kind} BYPRODUCTS ${stamp}
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${KV_ART}/${kind} -DOUT=${stamp} -P ${PROJECT_SOURCE_DIR}/cmake/ArtStamp.cmake
    COMMENT "Looking into art/${kind}"
    VERBATIM)
  set(${out} ${stamp} PARENT_SCOPE)
endfunction()

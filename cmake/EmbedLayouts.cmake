# Writes OUT: a C++ file that returns the text of each layout file by its base name, with VERSION in the place
# of "@VERSION@".
cmake_minimum_required(VERSION 3.25)  # else the place would be taken for a variable
set(text "// Made by cmake/EmbedLayouts.cmake.\n#include \"presentation/LayoutText.h\"\n\nnamespace kv {\n")
string(APPEND text "std::string_view LayoutText(std::string_view screen) {\n")
foreach(layout ${LAYOUTS})
  get_filename_component(name ${layout} NAME_WE)
  file(READ ${layout} json)
  string(REPLACE "@VERSION@" "${VERSION}" json "${json}")
  string(APPEND text "  if (screen == \"${name}\") return R\"kvjson(${json})kvjson\";\n")
endforeach()
string(APPEND text "  return screen.substr(0, 0);\n}\n}  // namespace kv\n")
file(WRITE ${OUT} "${text}")

# Precompiled headers, one for each kind of target: plain (rules libraries), ui (Qt's libraries), test (test
# programs). They hold library headers only, never our own, and save most of the time that a source costs.
# They are off unless KV_PCH is set: a source must name all that it uses, and builds without them (the release,
# the static analysis) are what notices when it does not.

# kv_declare_precompiled(kind header...): the target whose precompiled header the targets of the kind share. It
# must be given the libraries, definitions and options that they have.
function(kv_declare_precompiled kind)
  if(KV_PCH)
    set(source ${PROJECT_BINARY_DIR}/precompiled/${kind}.cpp)
    if(NOT EXISTS ${source})
      file(WRITE ${source} "// The precompiled header is all that this is compiled for.\n")
    endif()
    add_library(kv_pch_${kind} OBJECT ${source})
    target_precompile_headers(kv_pch_${kind} PRIVATE ${ARGN})
  endif()
endfunction()

# kv_precompiled(target kind): compiles the target with the kind's header.
function(kv_precompiled target kind)
  if(KV_PCH)
    target_precompile_headers(${target} REUSE_FROM kv_pch_${kind})
  endif()
endfunction()

# kv_join_sources(target): compiles five sources as one if KV_JOIN is set, as in the builds that only test, where loading
# the headers is most of what a source costs. What two sources of a folder hide in unnamed namespaces is therefore named differently.
function(kv_join_sources target)
  if(KV_JOIN)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 5)
  endif()
endfunction()

set(kv_plain_headers <algorithm> <array> <cstdint> <functional> <memory> <optional> <string> <string_view> <variant>
                     <vector>)
set(kv_ui_headers <QAbstractButton> <QApplication> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QPainter> <QWidget>)

kv_declare_precompiled(plain ${kv_plain_headers})
kv_declare_precompiled(ui ${kv_plain_headers} ${kv_ui_headers})
if(KV_PCH)
  target_link_libraries(kv_pch_plain PRIVATE kv_options)
  target_link_libraries(kv_pch_ui PRIVATE kv_options Qt6::Widgets Qt6::Network)
  target_compile_definitions(kv_pch_ui PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
endif()

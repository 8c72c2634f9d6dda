# The three layers. Includes point downwards only: fenster -> rand -> modell.
# modell links no Qt, so that a toolkit type in the model is a build error.
add_library(modell STATIC)
target_link_libraries(modell PUBLIC warnungen)
target_include_directories(modell PUBLIC "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/erzeugt")

add_library(rand STATIC)
set_target_properties(rand PROPERTIES LINKER_LANGUAGE CXX)
target_link_libraries(rand PUBLIC modell Qt6::Core Qt6::Gui Qt6::PrintSupport)
target_compile_definitions(rand PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
target_precompile_headers(rand PRIVATE <QtCore> <QtGui>)

add_library(fenster STATIC)
target_link_libraries(fenster PUBLIC rand Qt6::Widgets Qt6::PrintSupport)
target_precompile_headers(fenster PRIVATE <QtWidgets>)
set_target_properties(fenster PROPERTIES AUTOMOC ON)

configure_file("${PROJECT_SOURCE_DIR}/core/konfiguration.h.in" "${PROJECT_BINARY_DIR}/erzeugt/core/konfiguration.h" @ONLY)

# feldkranz_quellen(<layer> <file>...): adds sources of the calling subsystem to a layer.
function(feldkranz_quellen schicht)
  foreach(datei IN LISTS ARGN)
    target_sources(${schicht} PRIVATE "${PROJECT_SOURCE_DIR}/${datei}")
  endforeach()
endfunction()

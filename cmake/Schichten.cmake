# What is precompiled: headers that most sources of a layer read. Whole modules of the toolkit (<QtWidgets>) are read
# faster once, but leave each source half a second of templates to instantiate that it doesn't use.
set(FELDKRANZ_VORAB_STD <algorithm> <array> <cmath> <functional> <map> <optional> <span> <string> <vector>)
set(FELDKRANZ_VORAB_RAND <QDir> <QFileInfo> <QFontMetricsF> <QStringList> ${FELDKRANZ_VORAB_STD})
set(FELDKRANZ_VORAB_FENSTER <QApplication> <QComboBox> <QDialog> <QGroupBox> <QKeyEvent> <QLabel> <QLineEdit>
  <QMainWindow> <QPainter> <QPlainTextEdit> <QPointer> <QPushButton> <QTimer> <QToolButton> <QVBoxLayout> <variant>
  ${FELDKRANZ_VORAB_STD})

# The three layers. Includes point downwards only: fenster -> rand -> modell.
# modell links no Qt, so that a toolkit type in the model is a build error.
add_library(modell STATIC)
target_link_libraries(modell PUBLIC warnungen)
target_precompile_headers(modell PRIVATE ${FELDKRANZ_VORAB_STD})
# In the other layers the toolkit's own inline pointers would raise it.
target_compile_options(modell PRIVATE -Wnull-dereference)
target_include_directories(modell PUBLIC "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/erzeugt")

add_library(rand STATIC)
set_target_properties(rand PROPERTIES LINKER_LANGUAGE CXX)
target_link_libraries(rand PUBLIC modell Qt6::Core Qt6::Gui Qt6::PrintSupport)
target_compile_definitions(rand PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
target_precompile_headers(rand PRIVATE ${FELDKRANZ_VORAB_RAND})

add_library(fenster STATIC)
target_link_libraries(fenster PUBLIC rand Qt6::Widgets Qt6::PrintSupport)
target_precompile_headers(fenster PRIVATE ${FELDKRANZ_VORAB_FENSTER})
set_target_properties(fenster PROPERTIES AUTOMOC ON)

# Where the runnable program and its folders are laid.
set(FELDKRANZ_PROGRAMMORDNER "${PROJECT_BINARY_DIR}/Feldkranz")

# Where an installed program has what the portable folder holds, below the prefix.
include(GNUInstallDirs)
set(FELDKRANZ_DATENORDNER "share/feldkranz")
set(FELDKRANZ_ZUSATZORDNER "${CMAKE_INSTALL_LIBDIR}/feldkranz")

configure_file("${PROJECT_SOURCE_DIR}/core/konfiguration.h.in" "${PROJECT_BINARY_DIR}/erzeugt/core/konfiguration.h" @ONLY)

# feldkranz_quellen(<layer> <file>...): adds sources of the calling subsystem to a layer.
function(feldkranz_quellen schicht)
  foreach(datei IN LISTS ARGN)
    target_sources(${schicht} PRIVATE "${PROJECT_SOURCE_DIR}/${datei}")
  endforeach()
endfunction()

# feldkranz_zusatz(<name> <file>...): a plug-in beside the program, loaded at need. It links no layer: the state
# of the program must not exist twice. The toolkit's parts that it needs are the caller's to link.
function(feldkranz_zusatz name)
  list(TRANSFORM ARGN PREPEND "${PROJECT_SOURCE_DIR}/")
  add_library(${name} MODULE ${ARGN})
  target_link_libraries(${name} PRIVATE warnungen)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  set_target_properties(${name} PROPERTIES AUTOMOC ON LIBRARY_OUTPUT_DIRECTORY "${FELDKRANZ_PROGRAMMORDNER}")
  if(FELDKRANZ_SYSTEM)
    install(TARGETS ${name} LIBRARY DESTINATION "${FELDKRANZ_ZUSATZORDNER}")
  else()
    install(TARGETS ${name} LIBRARY DESTINATION .)
  endif()
endfunction()

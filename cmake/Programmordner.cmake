# The program, and the folder that it runs in: the executable with BITMAP CONFIG KRANZ REGEL SOUND TEST WISSEN
# beneath it, copied from data/. What the user has changed there stays: see DatenKopieren.cmake.

# The toolkit's own texts in German travel inside the program, as :/uebersetzung/qtbase_de.qm.
find_file(FELDKRANZ_QTBASE_DE qtbase_de.qm
  PATHS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}" /usr/share/qt6/translations
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED # the texts are the same on all systems
  DOC "The toolkit's German translation (Debian: qt6-translations-l10n)")
set_source_files_properties("${FELDKRANZ_QTBASE_DE}" PROPERTIES QT_RESOURCE_ALIAS qtbase_de.qm)
qt_add_resources(fenster uebersetzung PREFIX /uebersetzung FILES "${FELDKRANZ_QTBASE_DE}")

if(EXISTS "${PROJECT_SOURCE_DIR}/mainwindow/main.cpp")
  add_executable(feldkranz WIN32 mainwindow/main.cpp)
  target_link_libraries(feldkranz PRIVATE fenster)
  set_target_properties(feldkranz PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${FELDKRANZ_PROGRAMMORDNER}")
  if(WIN32)
    include(WindowsProgramm)
  endif()
  if(NOT FELDKRANZ_SYSTEM)
    install(TARGETS feldkranz RUNTIME DESTINATION .)
  endif()
endif()

add_custom_target(programmordner ALL
  COMMAND "${CMAKE_COMMAND}" "-DQUELLE=${PROJECT_SOURCE_DIR}/data" "-DZIEL=${FELDKRANZ_PROGRAMMORDNER}"
          -P "${PROJECT_SOURCE_DIR}/cmake/DatenKopieren.cmake"
  VERBATIM)

if(FELDKRANZ_SYSTEM)
  include(Systemordner)
  return()
endif()
install(CODE "
  set(QUELLE \"${PROJECT_SOURCE_DIR}/data\")
  set(ZIEL \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
  include(\"${PROJECT_SOURCE_DIR}/cmake/DatenKopieren.cmake\")")

# Where an installation for all users of a computer lays things: the program, what each person's folder is made
# of, and what the desktop wants to know of it.
install(TARGETS feldkranz RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# What is delivered, with the list of its checksums that the program goes by (start/einrichtung.cpp).
install(CODE "
  set(QUELLE \"${PROJECT_SOURCE_DIR}/data\")
  set(ZIEL \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${FELDKRANZ_DATENORDNER}\")
  set(LISTE LIEFERUNG)
  include(\"${PROJECT_SOURCE_DIR}/cmake/DatenKopieren.cmake\")")

install(FILES packaging/feldkranz.desktop DESTINATION share/applications)
install(FILES packaging/feldkranz.xml DESTINATION share/mime/packages)
install(DIRECTORY packaging/icons/hicolor DESTINATION share/icons)
install(FILES packaging/man/feldkranz.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES packaging/man/feldkranz.de.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/de/man1" RENAME feldkranz.1)

# The release notes are those of CHANGELOG.md.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
execute_process(COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/packaging/neuigkeiten.py" version
  OUTPUT_VARIABLE neueste COMMAND_ERROR_IS_FATAL ANY)
if(NOT neueste MATCHES "^${PROJECT_VERSION} ")
  message(FATAL_ERROR "CHANGELOG.md begins with ${neueste}, the program is ${PROJECT_VERSION}")
endif()
set(FELDKRANZ_METAINFO "${PROJECT_BINARY_DIR}/org.example.feldkranz.metainfo.xml")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  CHANGELOG.md packaging/neuigkeiten.py packaging/feldkranz.metainfo.xml.in)
execute_process(COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/packaging/neuigkeiten.py" metainfo
    "${PROJECT_SOURCE_DIR}/packaging/feldkranz.metainfo.xml.in" "${FELDKRANZ_HOMEPAGE}"
  OUTPUT_FILE "${FELDKRANZ_METAINFO}" COMMAND_ERROR_IS_FATAL ANY)
install(FILES "${FELDKRANZ_METAINFO}" DESTINATION share/metainfo)

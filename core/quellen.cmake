feldkranz_quellen(modell
  core/anfuehrung.cpp
  core/cp1252.cpp core/cp1252_ersatz.cpp
  core/formularfenster.cpp
  core/fortschritt.cpp
  core/laufzeitfehler.cpp
  core/massstab.cpp
  core/meldungstext.cpp
  core/pfadname.cpp
  core/schritt.cpp
  core/wertlesen.cpp core/wertschreiben.cpp
  core/windowsname.cpp
  core/zeichenbefund.cpp)
feldkranz_quellen(rand core/datei.cpp core/ordner.cpp core/pfad.cpp)
if(WIN32)
  feldkranz_quellen(rand
    core/plattform_windows.cpp core/plattform_windows_fehler.cpp core/plattform_windows_ordner.cpp
    core/plattform_windows_programme.cpp core/plattform_windows_reste.cpp
    core/plattform_windows_sichern.cpp)
  target_link_libraries(rand PUBLIC winmm)
else()
  feldkranz_quellen(rand
    core/plattform_posix.cpp core/plattform_posix_ordner.cpp core/plattform_posix_programme.cpp
    core/plattform_posix_reste.cpp core/plattform_posix_sichern.cpp core/plattform_posix_ziel.cpp)
endif()
feldkranz_quellen(fenster
  core/bilder.cpp
  core/drehfeld.cpp core/drehfeld.h
  core/insbild.cpp
  core/klappliste.cpp
  core/lesehilfe.cpp
  core/massfenster.cpp core/massfenster.h
  core/oberflaeche.cpp
  core/palettenstil.cpp core/palettenstil.h
  core/panel.cpp core/panel.h
  core/panelansage.cpp
  core/taste.cpp
  core/textfeld.cpp core/textfeld.h
  core/eigenverlauf.cpp core/textpruefung.cpp core/textzeile.cpp
  core/ziehbilder.cpp core/ziehen.cpp core/ziehtasten.cpp)
if(WIN32)
  feldkranz_quellen(fenster core/kontrastfrage_windows.cpp)
else()
  feldkranz_quellen(fenster core/kontrastfrage_portal.cpp)
  target_link_libraries(fenster PUBLIC Qt6::DBus)
endif()

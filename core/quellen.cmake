feldkranz_quellen(modell core/cp1252.cpp core/cp1252_ersatz.cpp core/fortschritt.cpp core/laufzeitfehler.cpp core/pfadname.cpp
  core/schaltflaechen.cpp)
feldkranz_quellen(rand core/datei.cpp core/ordner.cpp core/pfad.cpp)
if(WIN32)
  feldkranz_quellen(rand core/plattform_windows.cpp)
  target_link_libraries(rand PUBLIC winmm)
else()
  feldkranz_quellen(rand
    core/plattform_posix.cpp core/plattform_posix_ordner.cpp core/plattform_posix_programme.cpp
    core/plattform_posix_sichern.cpp core/plattform_posix_ziel.cpp)
endif()
feldkranz_quellen(fenster
  core/oberflaeche.cpp
  core/drehfeld.cpp core/drehfeld.h
  core/panel.cpp core/panel.h
  core/textfeld.cpp core/textfeld.h
  core/ziehbilder.cpp core/ziehen.cpp core/ziehtasten.cpp
  core/ablage.cpp
  core/bilder.cpp
  core/befehle.cpp
  core/flaggen.cpp
  core/formularbefehle.cpp
  core/testbefehle.cpp
  core/fortschrittsbalken.cpp
  core/frmMDI.cpp core/frmMDI.h
  core/frmStart.cpp core/frmStart.h
  core/hauptfenster.cpp
  core/hilfepanel.cpp core/hilfepanel.h
  core/menueleiste.cpp
  core/programmende.cpp
  core/spezialraster.cpp
  core/werkzeugleisten.cpp)

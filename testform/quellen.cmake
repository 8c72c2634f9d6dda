feldkranz_quellen(modell testform/punkte.cpp)
feldkranz_quellen(fenster
  testform/frmHBFragen.cpp testform/frmHBFragen.h
  testform/hbanordnung.cpp
  testform/hbereignisse.cpp
  testform/hbformular.cpp
  testform/hbinhalt.cpp
  testform/hbpunkte.cpp
  testform/hbziehen.cpp)

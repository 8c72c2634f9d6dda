feldkranz_quellen(modell
  filling/befund.cpp
  filling/brettfuellung.cpp
  filling/fragenvorrat.cpp
  filling/fuellauftrag.cpp
  filling/punktziel.cpp
  filling/testfuellung.cpp
  filling/zuordnung.cpp)

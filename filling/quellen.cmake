feldkranz_quellen(modell
  filling/befund.cpp
  filling/brettfuellung.cpp
  filling/fragenvorrat.cpp
  filling/fuellauftrag.cpp
  filling/punktziel.cpp
  filling/testfuellung.cpp
  filling/zuordnung.cpp)
feldkranz_quellen(fenster
  filling/brettwahl.cpp filling/brettwahl.h
  filling/frmFuellen.cpp filling/frmFuellen.h
  filling/frmFuellenBau.cpp
  filling/fuellen.cpp
  filling/fuellwahl.cpp filling/fuellwahl.h
  filling/testwahl.cpp filling/testwahl.h
  filling/vorschlagfeld.cpp filling/vorschlagfeld.h)

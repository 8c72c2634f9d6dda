feldkranz_quellen(modell tooltips/tooltipregeln.cpp)
feldkranz_quellen(fenster
  tooltips/absicht.cpp tooltips/hinweise.cpp
  tooltips/hinweiswaechter.cpp
  tooltips/tooltip.cpp tooltips/tooltip.h
  tooltips/tooltipfenster.cpp tooltips/tooltipfenster.h
  tooltips/tooltipps.cpp)

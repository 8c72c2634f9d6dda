feldkranz_quellen(modell periphery/tooltipregeln.cpp)
feldkranz_quellen(fenster
  periphery/hinweise.cpp
  periphery/hinweiswaechter.cpp
  periphery/tooltip.cpp periphery/tooltip.h
  periphery/tooltipfenster.cpp periphery/tooltipfenster.h
  periphery/tooltipps.cpp)

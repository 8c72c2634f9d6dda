feldkranz_quellen(fenster periphery/hinweise.cpp)

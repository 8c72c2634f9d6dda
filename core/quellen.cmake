feldkranz_quellen(modell core/laufzeitfehler.cpp)

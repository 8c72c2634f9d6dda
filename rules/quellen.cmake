feldkranz_quellen(modell rules/skalierung.cpp rules/spezialfelder.cpp rules/wertebereiche.cpp)

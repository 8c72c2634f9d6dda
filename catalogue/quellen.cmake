feldkranz_quellen(modell catalogue/katalogdatei.cpp catalogue/themen.cpp)

feldkranz_quellen(modell dialogs/texte.cpp)

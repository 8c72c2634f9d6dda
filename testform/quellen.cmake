feldkranz_quellen(fenster testform/hbformular.cpp)

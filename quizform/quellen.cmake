feldkranz_quellen(modell
  quizform/feldbild.cpp
  quizform/feldregeln.cpp
  quizform/zellenansage.cpp
  quizform/ziehregeln.cpp)
feldkranz_quellen(fenster
  quizform/fkanordnung.cpp
  quizform/fkansage.cpp
  quizform/fkblanko.cpp
  quizform/fkereignisse.cpp
  quizform/fkfarben.cpp
  quizform/fkformular.cpp
  quizform/fkregeln.cpp
  quizform/fkstand.cpp
  quizform/fkziehen.cpp
  quizform/fkzugriff.cpp
  quizform/frmFKFragen.cpp quizform/frmFKFragen.h)

feldkranz_quellen(modell
  forms/formularstand.cpp
  forms/schrittfolge.cpp)
feldkranz_quellen(fenster
  forms/einsetzen.cpp
  forms/formulare.cpp
  forms/formularfolger.cpp forms/formularfolger.h
  forms/formularjournal.cpp
  forms/formularlesen.cpp
  forms/formularpfad.cpp
  forms/oeffnen.cpp
  forms/quizformulare.cpp
  forms/rettung.cpp
  forms/speichern.cpp
  forms/testformulare.cpp
  forms/verlauf.cpp)

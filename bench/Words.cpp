// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Words.h"

#include <cstddef>

namespace bench {

namespace {

constexpr std::size_t languageCount = 3;
constexpr std::size_t wordCount = 6;

// The rows are the languages: reference, then two translations.
constexpr const char* captions[languageCount][wordCount] = {
    {"Save the customer", "Print all orders", "Delivery address", "Open invoices", "Next appointment",
     "Close"},
    {"Kunde speichern", "Aufträge drucken", "Lieferanschrift", "Offene Rechnungen", "Nächster Termin",
     "Schließen"},
    {"Klant opslaan", "Bestellingen afdrukken", "Afleveradres", "Openstaande facturen", "Volgende afspraak",
     "Sluiten"},
};
constexpr const char* toolTips[languageCount][wordCount] = {
    {"Keeps all changes", "Sends them to the printer", "Where the goods go", "Not paid so far",
     "Shows the calendar", "Leaves this window"},
    {"Behält alle Änderungen", "Schickt sie zum Drucker", "Wohin die Ware geht", "Bisher nicht bezahlt",
     "Zeigt den Kalender", "Verlässt dieses Fenster"},
    {"Bewaart alle wijzigingen", "Stuurt ze naar de printer", "Waar de goederen heen gaan",
     "Tot nu toe niet betaald", "Toont de agenda", "Verlaat dit venster"},
};

}  // namespace

std::string textFor(TextKind kind, int number, int language) {
  const auto row = static_cast<std::size_t>(language - 1) % languageCount;
  const auto column = static_cast<std::size_t>(number) % wordCount;
  const char* const words = kind == TextKind::Caption ? captions[row][column] : toolTips[row][column];
  return words + (" " + std::to_string(number));
}

}  // namespace bench

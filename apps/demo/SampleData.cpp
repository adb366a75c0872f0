// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SampleData.h"

namespace kob::demo {

using namespace Qt::StringLiterals;

SampleData sampleData() {
  const QDate day = today();
  return {
      {
          {u"E-014"_s,
           u"Perceuse à percussion"_s,
           Category::PowerTools,
           60,
           Case | Manual | Goggles,
           {},
           {},
           {}},
          {u"E-017"_s, u"Ponceuse excentrique"_s, Category::PowerTools, 50, Case | Manual, u"Inès Bachelet"_s,
           day.addDays(-4), day.addDays(3)},
          {u"E-021"_s,
           u"Visseuse sans fil 18 V"_s,
           Category::PowerTools,
           80,
           Case | Manual | Charger,
           {},
           {},
           {}},
          {u"E-025"_s, u"Scie sauteuse"_s, Category::PowerTools, 50, Manual | Goggles, u"Rémi Vauquelin"_s,
           day.addDays(-12), day.addDays(-5)},
          {u"J-003"_s,
           u"Taille-haie télescopique"_s,
           Category::Garden,
           90,
           Manual | Charger | Goggles,
           {},
           {},
           {}},
          {u"J-008"_s, u"Broyeur de végétaux"_s, Category::Garden, 150, Manual | Goggles,
           u"Odile Marchetti"_s, day.addDays(-1), day.addDays(2)},
          {u"J-011"_s, u"Échelle en aluminium, 5 m"_s, Category::Garden, 40, 0, {}, {}, {}},
          {u"M-002"_s, u"Niveau laser en croix"_s, Category::Measuring, 70, Case | Manual, {}, {}, {}},
          {u"M-005"_s, u"Détecteur de métaux mural"_s, Category::Measuring, 30, Case | Manual,
           u"Théo Lemoël"_s, day.addDays(-6), day.addDays(1)},
          {u"B-006"_s,
           u"Défonceuse et jeu de fraises"_s,
           Category::Woodworking,
           120,
           Case | Manual | Goggles,
           {},
           {},
           {}},
          {u"B-009"_s, u"Serre-joints (lot de six)"_s, Category::Woodworking, 25, 0, {}, {}, {}},
          {u"B-012"_s, u"Scie à onglet"_s, Category::Woodworking, 140, Manual | Goggles, u"Yann Kerbrat"_s,
           day.addDays(-18), day.addDays(-4)},
      },
      {
          {u"112"_s, u"Bachelet, Inès"_s, u"8, rue des Tisserands"_s, u"44000 Nantes"_s, u"02 40 00 11 24"_s,
           u"ines.bachelet@example.org"_s, Fee::Paid},
          {u"087"_s, u"Kerbrat, Yann"_s, u"31, quai de la Fonderie"_s, u"44000 Nantes"_s, u"02 40 00 37 90"_s,
           u"yann.kerbrat@example.org"_s, Fee::Due},
          {u"064"_s, u"Lemoël, Théo"_s, u"2, impasse du Lavoir"_s, u"44100 Nantes"_s, u"02 40 00 58 06"_s,
           u"theo.lemoel@example.org"_s, Fee::Paid},
          {u"003"_s, u"Marchetti, Odile"_s, u"17, allée des Glycines"_s, u"44300 Nantes"_s,
           u"02 40 00 20 71"_s, u"odile.marchetti@example.org"_s, Fee::Free},
          {u"131"_s, u"Ould-Amar, Selma"_s, u"5, place du Séchoir"_s, u"44000 Nantes"_s, u"02 40 00 94 43"_s,
           u"selma.ouldamar@example.org"_s, Fee::Paid},
          {u"098"_s, u"Vauquelin, Rémi"_s, u"46, rue de l’Écluse"_s, u"44100 Nantes"_s, u"02 40 00 66 15"_s,
           u"remi.vauquelin@example.org"_s, Fee::Due},
      },
  };
}

}  // namespace kob::demo

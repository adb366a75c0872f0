// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Messages.h"

#include <kobtraductionqt/KOBTraductionQt.h>

namespace kob::demo {

namespace {

struct Message {
  const char16_t* name;
  const char16_t* text;
};

constexpr Message messages[] = {
    {u"ColNumero", u"N°"},
    {u"ColOutil", u"Outil"},
    {u"ColCategorie", u"Catégorie"},
    {u"ColEtat", u"État"},
    {u"ColNom", u"Nom"},
    {u"ColAdresse", u"Adresse"},
    {u"ColTelephone", u"Téléphone"},
    {u"ColCotisation", u"Cotisation"},
    {u"ColEmprunteur", u"Emprunteur"},
    {u"ColSortie", u"Sorti le"},
    {u"ColRetour", u"À rendre le"},
    {u"ColRetard", u"Retard"},
    {u"CategorieToutes", u"Toutes les catégories"},
    {u"Categorie0", u"Électroportatif"},
    {u"Categorie1", u"Jardin"},
    {u"Categorie2", u"Mesure"},
    {u"Categorie3", u"Menuiserie"},
    {u"EtatDisponible", u"Disponible"},
    {u"EtatSorti", u"Sorti"},
    {u"Cotisation0", u"À jour"},
    {u"Cotisation1", u"À renouveler"},
    {u"Cotisation2", u"Offerte"},
    {u"RetardJours", u"%1 jours"},
    {u"Resume", u"%1 outils, dont %2 sortis"},
    {u"RappelEnvoye", u"Un rappel est parti à %1."},
    {u"Imprime", u"Envoyé à l’imprimante."},
    {u"APropos",
     u"L’Outilthèque tient le registre des prêts d’une association qui partage ses outils.\n"
     u"Ses textes sont traduits pendant qu’elle fonctionne."},
};

}  // namespace

void Messages::record(KOBModeleTraduction& model) {
  // A model that was read from a file has them already, but perhaps not all.
  std::shared_ptr<KOBCellTraduction> node = model.GetCell(u"Messages");
  if (node == nullptr) {
    node = model.Racine()->AddNoeuds(u"Messages");
  }
  for (const Message& message : messages) {
    node->AddMessage(message.name, message.text);
  }
}

QString Messages::operator()(const char* name) const {
  return qt::toQString(
      model_.GetTraduction(u"Messages\\" + qt::toText(QString::fromLatin1(name)), language_));
}

}  // namespace kob::demo

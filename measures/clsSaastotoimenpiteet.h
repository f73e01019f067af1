// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "building/Koti.h"
#include "consumers/RivillinenKokoelma.h"
#include "kernel/Laskenta.h"
#include "measures/clsSaastoToimenpideListaItem.h"
#include "measures/clsSaastotoimenpide.h"

class Toimenpideluettelo;

/// The saving measures of the building and the nodes of their tree. The tree has fixed nodes for the modules and below
/// them the spaces, machines and consumer groups as they are; a measure is a node below what it concerns.
///
/// While there are measures, objects of the model may neither come nor go (building/Toimenpideviittaukset.h). Errors:
/// 9999 with the method's literal.
class clsSaastotoimenpiteet
    : public Malli<clsSaastotoimenpiteet, RivillinenKokoelma<clsSaastotoimenpide, clsSaastoToimenpideListaItem>> {
 public:
  static const Luokka kLuokka;
  /// Key of the root node.
  static const Tunniste kKokoKohde;
  /// Nodes at which the list can be opened, by level: the whole object, supplies, spaces, machines, electricity, water.
  static const std::array<Tunniste, 6> kTasot;
  /// Takes its place in a building, and its measures with it.
  void Kotiudu(const Koti& koti);

  std::int32_t TaulukonNakymaTyyppiID = 0;  ///< column view of the list, 0 to 3; no content of its own

  /// Adds a node at the end of the tree's list.
  clsSaastoToimenpideListaItem& AddListaItem(const Tunniste& sKey, const Tunniste& Parent, std::string NimiTeksti,
                                             std::int32_t ItemTyyppi);
  /// Keys of the measures that concern the object of that identity.
  std::vector<Tunniste> LiittyykoToimenpidetta(const Tunniste& instanssiId) const;

  /// Brings the nodes of spaces, machines and consumer groups up to date with the model; those of measures stay.
  void PaivitaHierarkiaLista();
  /// The measures below the node, in the order of their nodes.
  std::vector<clsSaastotoimenpide*> Toimenpiteet(const Tunniste& solmu) const;
  /// A measure can be added at the node: it stands for an object of the model, or for electricity or water as a whole.
  static bool VoiLisata(const Tunniste& solmu);
  /// The name proposed for a measure added at the node.
  std::string NimiEhdotus(const Tunniste& solmu) const;
  /// Adds a measure of what the node stands for, dated and priced as of now and with no effect yet, and its node; with
  /// an empty name it has the proposed one. A node of electricity or water as a whole gives a measure with a consumer
  /// group of its own. At a node where none can be added a message, and nothing.
  clsSaastotoimenpide* Lisaa(const Tunniste& solmu, std::string nimi = {});
  /// Removes the measure, its node, and its rows in the arranger.
  void Poista(const Tunniste& toimenpide);

  /// Brings all measures to the present base: takes its gross figures, if any measure hasn't got them, and computes the
  /// measures whose figures moved by more than a tenth or aren't valid. Gives the base.
  Hyodykkeet PaivitaEnnenTiedotToimenpiteisiin();
  Hyodykkeet PaivitaEnnenTiedotToimenpiteisiin(Muunnelmalaskin& laskin);

  /// Opens the list of measures, or brings it to front, at the node of the level, 0 to 5 (kTasot). Any other level
  /// leaves the choice as it is, at opening none.
  void NaytaKayttoliittyma(int taso);

 protected:
  void Saapui(clsSaastotoimenpide& toimenpide) override { toimenpide.Kotiudu(koti_); }

 private:
  struct Perusta {
    Hyodykkeet kulutus;
    std::uint64_t vaihe;  // of the building
  };
  const clsSaastoToimenpideListaItem* Solmu(const Tunniste& avain) const { return ListaItems().Etsi(avain); }
  void LisaaMallinSolmu(const Tunniste& sKey, const Tunniste& vanhempi, const std::string& nimi);
  Hyodykkeet AjantasainenPerusta();

  Koti koti_;
  Oma<std::shared_ptr<Toimenpideluettelo>> luettelo_;
  Oma<std::optional<Perusta>> perusta_;  // as last given to the measures
};

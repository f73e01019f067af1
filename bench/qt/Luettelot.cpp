// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/qt/Luettelot.h"

#include <QApplication>
#include <stdexcept>

#include "bench/Parit.h"
#include "ui/qt/QtIkkuna.h"

namespace mittaus {

namespace {

constexpr int kSarakkeita = 9, kMuutettava = 500;

QTreeView& Nakyma(const Lomake& lomake) {
  return *static_cast<QtIkkuna&>(lomake.Ikkuna()).Juuri()->findChild<QTreeView*>("lvwTilat");
}

QStringList Teksteiksi(const std::vector<std::string>& solut) {
  QStringList tekstit;
  for (const std::string& solu : solut) tekstit << QString::fromStdString(solu);
  return tekstit;
}

}  // namespace

Luetteloparit::Luetteloparit(int nimikkeita) : oma_(Nakyma(lomake_)), nimikkeita_(nimikkeita) {
  lomake_.Nayta();
  paljas_.setColumnCount(kSarakkeita);
  paljas_.setRootIsDecorated(nimikkeita > 0);
  paljas_.setUniformRowHeights(true);
  paljas_.resize(oma_.size());
  paljas_.show();
  QApplication::processEvents();
}

std::vector<std::string> Luetteloparit::Solut(int rivi) const {
  std::vector<std::string> solut{"Tila " + std::to_string(rivi)};
  for (int s = 1; s < kSarakkeita; ++s) solut.push_back(std::to_string((rivi * s + kierros_) % 9973) + ",25");
  return solut;
}

/// Other keys than the round before: every row is new to the list.
Luettelosisalto Luetteloparit::Sisalto() {
  ++kierros_;
  Luettelosisalto sisalto;
  const auto nimike = [](int i) { return Tunniste("nimike " + std::to_string(i)); };
  for (int i = 0; i < nimikkeita_; ++i) sisalto.rivit.push_back({Solut(i), nimike(i)});
  for (int i = 0; i < kRiveja; ++i)
    sisalto.rivit.push_back({Solut(i), Tunniste("rivi " + std::to_string(i + kierros_ % 2)),
                             nimikkeita_ > 0 ? nimike(i % nimikkeita_) : Tunniste()});
  return sisalto;
}

double Luetteloparit::TaytaOma() {
  Luettelosisalto sisalto = Sisalto();
  return Suoritinaika([&] {
    lomake_.lvwTilat.Tayta(std::move(sisalto));
    oma_.viewport()->repaint();
  });
}

double Luetteloparit::TaytaPaljas() {
  const Luettelosisalto sisalto = Sisalto();
  return Suoritinaika([&] {
    paljas_.clear();
    QList<QTreeWidgetItem*> rivit;
    int alla = 0;
    for (const Luettelorivi& rivi : sisalto.rivit) {
      auto* uusi = new QTreeWidgetItem(Teksteiksi(rivi.solut));
      for (int s = 1; s < kSarakkeita; ++s) uusi->setTextAlignment(s, Qt::AlignRight);
      if (rivi.ylempi.Tyhja())
        rivit << uusi;
      else
        rivit[alla++ % nimikkeita_]->addChild(uusi);
    }
    paljas_.addTopLevelItems(rivit);
    paljas_.expandAll();
    paljas_.viewport()->repaint();
  });
}

double Luetteloparit::MuutaOmanRivi() {
  ++kierros_;
  return Suoritinaika([&] {
    lomake_.lvwTilat.Rivi(kMuutettava, Solut(kMuutettava));
    oma_.viewport()->repaint();
  });
}

double Luetteloparit::MuutaPaljaanRivi() {
  ++kierros_;
  return Suoritinaika([&] {
    const QStringList solut = Teksteiksi(Solut(kMuutettava));
    for (int s = 0; s < kSarakkeita; ++s) paljas_.topLevelItem(kMuutettava)->setText(s, solut[s]);
    paljas_.viewport()->repaint();
  });
}

QVariant Luetteloparit::Solu(const QAbstractItemModel& malli, int rivi, int sarake) const {
  if (nimikkeita_ == 0) return malli.index(rivi, sarake).data();
  return malli.index(rivi / nimikkeita_, sarake, malli.index(rivi % nimikkeita_, 0)).data();
}

void Luetteloparit::Tarkista() {
  TaytaOma();
  --kierros_;
  TaytaPaljas();
  for (const int rivi : {0, kMuutettava, kRiveja - 1})
    for (int s = 0; s < kSarakkeita; ++s)
      if (Solu(*oma_.model(), rivi, s) != Solu(*paljas_.model(), rivi, s)) throw std::runtime_error("the lists differ");
}

}  // namespace mittaus

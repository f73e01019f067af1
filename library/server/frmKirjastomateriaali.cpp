// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/server/frmKirjastomateriaali.h"

frmKirjastomateriaali::frmKirjastomateriaali() : Lomake("frmKirjastomateriaali") {
  for (const TextBox& kentta :
       {txtNimi, txtRyhma, txtLambda, txtTiheys, txtOminaislampo, txtMuKuiva, txtMuMarka, txtLahde}) {
    kentta.KunMuuttuu([this] { Nosta(MateriaaliMuuttui); });
    kentta.KunPoistutaan([this] { Nosta(KentastaPoistuttu); });
  }
  cmdSulje.Nostaa(SuljeKlikattu);
}

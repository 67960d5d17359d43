#include "nfce_addresses.h"

namespace q7
{
namespace
{

// One address serves both environments where the second is left out.
struct Address {
    const char* production = nullptr;
    const char* homologation = nullptr;
};

struct StateAddresses {
    int ibgeNumber;
    Address consultation; // as the state publishes it, with a scheme or without
    Address qrCode;       // ready for the parameters that follow
};

// clang-format off
constexpr StateAddresses stateAddresses[] = {
    {11, // RO
     {"www.sefin.ro.gov.br/nfce/consulta"},
     {"http://www.nfce.sefin.ro.gov.br/consultanfce/consulta.jsp?p="}},
    {12, // AC
     {"www.sefaznet.ac.gov.br/nfce/consulta"},
     {"http://www.sefaznet.ac.gov.br/nfce/qrcode?p=",
      "http://www.hml.sefaznet.ac.gov.br/nfce/qrcode?p="}},
    {13, // AM
     {"www.sefaz.am.gov.br/nfce/consulta"},
     {"https://sistemas.sefaz.am.gov.br/nfceweb/consultarNFCe.jsp?p=",
      "https://sistemas.sefaz.am.gov.br/nfceweb-hom/consultarNFCe.jsp?p="}},
    {14, // RR
     {"www.sefaz.rr.gov.br/nfce/consulta"},
     {"https://www.sefaz.rr.gov.br/servlet/qrcode?p=",
      "http://200.174.88.103:8080/nfce/servlet/qrcode?p="}},
    {15, // PA
     {"www.sefa.pa.gov.br/nfce/consulta"},
     {"https://appnfc.sefa.pa.gov.br/portal/view/consultas/nfce/nfceForm.seam?p=",
      "https://appnfc.sefa.pa.gov.br/portal-homologacao/view/consultas/nfce/nfceForm.seam?p="}},
    {16, // AP
     {"www.sefaz.ap.gov.br/nfce/consulta"},
     {"https://www.sefaz.ap.gov.br/nfce/nfcep.php?p=",
      "https://www.sefaz.ap.gov.br/nfcehml/nfce.php?p="}},
    {17, // TO
     {"www.sefaz.to.gov.br/nfce/consulta"},
     {"http://www.sefaz.to.gov.br/nfce/qrcode?p=",
      "http://homologacao.sefaz.to.gov.br/nfce/qrcode?p="}},
    {21, // MA
     {"www.sefaz.ma.gov.br/nfce/consulta"},
     {"http://www.nfce.sefaz.ma.gov.br/portal/consultarNFCe.jsp?p=",
      "http://www.hom.nfce.sefaz.ma.gov.br/portal/consultarNFCe.jsp?p="}},
    {22, // PI
     {"www.sefaz.pi.gov.br/nfce/consulta"},
     {"http://www.sefaz.pi.gov.br/nfce/qrcode?p=",
      "http://www.sefaz.pi.gov.br/nfce/qrcode?p="}},
    {23, // CE
     {"www.sefaz.ce.gov.br/nfce/consulta"},
     {}},
    {24, // RN
     {"www.set.rn.gov.br/nfce/consulta"},
     {"http://nfce.set.rn.gov.br/consultarNFCe.aspx?p=",
      "http://hom.nfce.set.rn.gov.br/consultarNFCe.aspx?p="}},
    {25, // PB
     {"www.sefaz.pb.gov.br/nfce/consulta",
      "www.sefaz.pb.gov.br/nfcehom"},
     {"http://www.sefaz.pb.gov.br/nfce?p=",
      "http://www.sefaz.pb.gov.br/nfcehom?p="}},
    {26, // PE
     {"nfce.sefaz.pe.gov.br/nfce/consulta"},
     {"http://nfce.sefaz.pe.gov.br/nfce/consulta?p=",
      "http://nfcehomolog.sefaz.pe.gov.br/nfce/consulta?p="}},
    {27, // AL
     {"www.sefaz.al.gov.br/nfce/consulta"},
     {"http://nfce.sefaz.al.gov.br/QRCode/consultarNFCe.jsp?p="}},
    {28, // SE
     {"http://www.nfce.se.gov.br/nfce/consulta"},
     {"http://www.nfce.se.gov.br/nfce/qrcode?p=",
      "http://www.hom.nfe.se.gov.br/nfce/qrcode?p="}},
    {29, // BA
     {"http://www.sefaz.ba.gov.br/nfce/consulta",
      "http://hinternet.sefaz.ba.gov.br/nfce/consulta"},
     {"http://nfe.sefaz.ba.gov.br/servicos/nfce/qrcode.aspx?p=",
      "http://hnfe.sefaz.ba.gov.br/servicos/nfce/qrcode.aspx?p="}},
    {31, // MG
     {"https://portalsped.fazenda.mg.gov.br/portalnfce"},
     {}},
    {32, // ES
     {"www.sefaz.es.gov.br/nfce/consulta"},
     {}},
    {33, // RJ
     {"www.fazenda.rj.gov.br/nfce/consulta"},
     {"https://consultadfe.fazenda.rj.gov.br/consultaNFCe/QRCode?p="}},
    {35, // SP
     {"https://www.nfce.fazenda.sp.gov.br/NFCeConsultaPublica",
      "https://www.homologacao.nfce.fazenda.sp.gov.br/NFCeConsultaPublica"},
     {"https://www.nfce.fazenda.sp.gov.br/qrcode?p=",
      "https://www.homologacao.nfce.fazenda.sp.gov.br/qrcode?p="}},
    {41, // PR
     {"http://www.fazenda.pr.gov.br/nfce/consulta"},
     {"http://www.fazenda.pr.gov.br/nfce/qrcode?p="}},
    {42, // SC
     {},
     {}},
    {43, // RS
     {"www.sefaz.rs.gov.br/nfce/consulta"},
     {"https://www.sefaz.rs.gov.br/NFCE/NFCE-COM.aspx?p="}},
    {50, // MS
     {"http://www.dfe.ms.gov.br/nfce/consulta"},
     {"http://www.dfe.ms.gov.br/nfce/qrcode?p="}},
    {51, // MT
     {"http://www.sefaz.mt.gov.br/nfce/consultanfce"},
     {"http://www.sefaz.mt.gov.br/nfce/consultanfce?p=",
      "http://homologacao.sefaz.mt.gov.br/nfce/consultanfce?p="}},
    {52, // GO
     {"www.sefaz.go.gov.br/nfce/consulta"},
     {"https://nfeweb.sefaz.go.gov.br/nfeweb/sites/nfce/danfeNFCe?p=",
      "https://nfewebhomolog.sefaz.go.gov.br/nfeweb/sites/nfce/danfeNFCe?p="}},
    {53, // DF
     {"www.fazenda.df.gov.br/nfce/consulta"},
     {"http://www.fazenda.df.gov.br/nfce/qrcode?p="}},
};
// clang-format on

} // namespace

QString nfceAddress(int ibgeNumber, NfceAddressKind kind, bool isProduction)
{
    for (const StateAddresses& state : stateAddresses) {
        if (state.ibgeNumber != ibgeNumber)
            continue;
        const Address& address =
            kind == NfceAddressKind::Consultation ? state.consultation : state.qrCode;
        return QLatin1String(isProduction || address.homologation == nullptr
                                 ? address.production
                                 : address.homologation);
    }
    return {};
}

} // namespace q7

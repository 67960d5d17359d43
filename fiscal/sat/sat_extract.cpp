#include "sat_extract.h"

#include "logo_heading.h"

#include <QStringList>

namespace q7
{
namespace
{

constexpr int qrModuleDots = 5;
constexpr int qrLevelL = 1;

} // namespace

void chooseSeparatorWidth(PrinterSession& session)
{
    session.useWidth2 = session.model().id != DunelModel;
}

void printSatSeparator(const PrinterSession& session)
{
    const PrinterModel& model = session.model();
    printSeparator(session.useWidth2 ? model.width2 : model.width1);
}

void printHeading(const QString& heading, int options)
{
    if ((options & headingBesideLogo) != 0)
        printLogoHeading(heading, LogoPlace::Indented);
    else
        printLine(heading, AlignCentre, SmallFont, 2);
}

void printIssuerIds(const PrinterSession& session, const QString& cnpj, const QString& ie,
                    const QString& im)
{
    QString ids = "CNPJ " + cnpj + " IE " + ie;
    if (!im.isEmpty())
        ids += " IM " + im;
    printLine(ids, AlignCentre, SmallFont);
    printSatSeparator(session);
}

QString consumerLine(const QString& consumerId)
{
    return "CPF/CNPJ do Consumidor: " + consumerId;
}

QString satUnitLine(const QString& serial)
{
    return "SAT No. " + serial;
}

void printConsultationQrCode(const QString& key, const QString& emission, const QString& total,
                             const QString& consumerId, const QString& signature)
{
    const QString content =
        QStringList{key, emission, total, consumerId, signature}.join(QLatin1Char('|'));
    ImpressaoQRCode(content.toUtf8().constData(), qrModuleDots, qrLevelL);
}

} // namespace q7

#include "printer_models.h"

#include "data_folder.h"
#include "ini_file.h"
#include "log.h"

#include <algorithm>
#include <iterator>

namespace q7
{
namespace
{

// Placeholders: the makers' own identifiers are not known here, and a site enters its printer's in
// "q7_usb.ini". What holds is who shares with whom: three models one maker, three another, two a
// third, and ORLA-K and RANZA the same product as well.
constexpr quint16 vendorOfVanta = 0x1A01;
constexpr quint16 vendorOfVolta = 0x1A02;
constexpr quint16 vendorOfSorbe = 0x1A03;
constexpr quint16 vendorOfPinta = 0x1A04;
constexpr quint16 vendorOfDunel = 0x1A05;
constexpr quint16 vendorOfTesmo = 0x1A06;

// Constant, not built at start-up: the session is made while the library loads and reads it.
constexpr PrinterModels builtInModels = {{
    {0, "VANTA", vendorOfVanta, 0x0001, 16, 15, 0, 48, 64},
    {1, "VESPA", vendorOfVanta, 0x0002, 16, 15, 0, 48, 64},
    {VoltaModel, "VOLTA", vendorOfVolta, 0x0001, 16, 180, 1, 48, 64},
    {OrlaKModel, "ORLA-K", vendorOfVolta, 0x0002, 16, 150, 1, 42, 56},
    {4, "PINTA", vendorOfPinta, 0x0001, 16, 15, 0, 48, 64},
    {5, "RANZA", vendorOfVolta, 0x0002, 16, 15, 0, -1, -1},
    {6, "RANZAPRO", vendorOfVanta, 0x0003, 16, 15, 0, -1, -1},
    {SorbeModel, "SORBE", vendorOfSorbe, 0x0001, 16, 15, 0, 42, 56},
    {8, "SALVI", vendorOfSorbe, 0x0002, 16, 15, 0, 48, 64},
    {DunelModel, "DUNEL", vendorOfDunel, 0x0001, 16, 15, 0, 48, 64},
    {11, "TESMO", vendorOfTesmo, 0x0001, 16, 15, 0, -1, -1},
}};

PrinterModels buildTable()
{
    PrinterModels models = builtInModels;
    applyUsbIdentifiers(models, IniFile(pathInDataFolder("q7_usb.ini")));
    return models;
}

template <typename Predicate> const PrinterModel* findModel(Predicate predicate)
{
    const PrinterModels& models = modelTable();
    const auto* const row = std::find_if(models.begin(), models.end(), predicate);
    return row == models.end() ? nullptr : &*row;
}

void readIdentifier(const IniFile& settings, const PrinterModel& model, const char* key,
                    quint16& identifier)
{
    const std::optional<QString> text = settings.value(model.name, key);
    if (!text)
        return;
    const bool isHex = std::all_of(text->begin(), text->end(), [](QChar c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
    });
    if (text->isEmpty() || text->size() > 4 || !isHex) {
        writeLog(LogKind::Information,
                 QString("q7_usb.ini: ") + model.name + '/' + key + " IGNORADO: " + *text);
        return;
    }
    identifier = text->toUShort(nullptr, 16);
}

} // namespace

const PrinterModels& modelTable()
{
    // Nothing in it is destroyed: a program may print from a destructor of its own at its end.
    static const PrinterModels models = buildTable();
    return models;
}

const PrinterModel* modelById(int id)
{
    return findModel([id](const PrinterModel& model) { return model.id == id; });
}

const PrinterModel* modelByName(const QString& name)
{
    return findModel([&](const PrinterModel& model) { return name == QLatin1String(model.name); });
}

QString makeUsbIdText(const QString& modelName)
{
    QString vendor;
    QString product;
    if (const PrinterModel* model = modelByName(modelName)) {
        vendor = QString::number(model->vendorId, 16).rightJustified(4, '0');
        product = QString::number(model->productId, 16).rightJustified(4, '0');
    }
    return ("VID_" + vendor + "&PID_" + product).toUpper();
}

void applyUsbIdentifiers(PrinterModels& models, const IniFile& settings)
{
    for (PrinterModel& model : models) {
        readIdentifier(settings, model, "vendor_id", model.vendorId);
        readIdentifier(settings, model, "product_id", model.productId);
    }
}

} // namespace q7

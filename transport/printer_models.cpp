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

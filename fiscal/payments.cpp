#include "payments.h"

#include "formatters.h"
#include "xml_document.h"

namespace q7
{
namespace
{

struct PaymentMethod {
    int code;
    const char* name;
};

constexpr PaymentMethod paymentMethods[] = {
    {1, "Dinheiro"},         {2, "Cheque"},         {3, "Cartão de Crédito"},
    {4, "Cartão de Débito"}, {5, "Crédito Loja"},   {10, "Vale Alimentação"},
    {11, "Vale Refeição"},   {12, "Vale Presente"}, {13, "Vale Combustível"},
    {99, "Outros"},
};

QString methodName(const QString& code, const QString& previousName)
{
    const int number = code.toInt();
    for (const PaymentMethod& method : paymentMethods) {
        if (method.code == number)
            return QString::fromUtf8(method.name);
    }
    return previousName;
}

} // namespace

std::vector<Payment> readPayments(const std::vector<XmlNode>& elements, const char* codeName,
                                  const char* valueName)
{
    std::vector<Payment> payments;
    QString name;
    for (const XmlNode& element : elements) {
        name = methodName(childText(element, codeName), name);
        payments.push_back({name, amountOf(childText(element, valueName))});
    }
    return payments;
}

} // namespace q7

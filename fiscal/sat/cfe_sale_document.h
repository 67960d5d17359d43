// A SAT CF-e sale.
#pragma once

#include "cfe_document.h"
#include "item_records.h"
#include "payments.h"

#include <vector>

namespace q7
{

class CfeSaleDocument : public CfeDocument
{
public:
    /** xml: the sale's text, root CFe. Text that cannot be taken gives a sale without anything. */
    explicit CfeSaleDocument(const char* xml);

    QString issuerCnpj;
    QString softwareHouseCnpj;
    QString signAC;
    QString emission;   // AAAAMMDDhhmmss
    QString accessKey;  // 44 digits
    QString consumerId; // CPF, else CNPJ, with its marks; empty for a consumer who gave none
    QString consumerName;
    QString totalDiscount;
    QString totalOther;
    QString subtotalDiscount;
    QString subtotalIncrease;
    QString change;
    QString fiscoField;
    QString fiscoText;
    QString complementaryInfo;
    QString taxTotal12741;
    QString deliveryText; // no field of the document fills it
    std::vector<CfeItem> items;
    std::vector<Payment> payments;

private:
    void readItems();
};

} // namespace q7

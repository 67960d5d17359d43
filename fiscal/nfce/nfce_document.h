// An NFC-e of layout 4.00, read for its receipt.
#pragma once

#include "item_records.h"
#include "nfce_addresses.h"
#include "payments.h"
#include "xml_document.h"

#include <vector>

namespace q7
{

/** A payment, whose name is that of the original receipt. */
struct NfcePayment : Payment {
    QString code;        // tPag
    QString description; // xPag
};

/** Read once when made, and only read from then on. Texts as written in the XML unless said
 *  otherwise, empty where the element is missing. */
class NfceDocument : public FiscalXmlDocument
{
public:
    /** Reads the fields in a fixed order, of which it leaves traces in the log. A note without
     *  urlChave is not read beyond its date: everything from emissionType on stays empty. */
    explicit NfceDocument(const FiscalXmlDocument& xml);

    /** The address of a state, in this note's environment. */
    QString addressOf(int ibgeNumber, NfceAddressKind kind) const;

    // Under today's rules.

    /** Issued in contingency and not authorised since. */
    bool isPending() const { return emissionType.toInt() != 1 && protocolNumber.isEmpty(); }

    /** An NF-e that is printed as a receipt. */
    bool isSimplifiedType2() const;

    QString number;
    QString series;
    QString issueDateTime;
    // Nothing in a note fills it, not even tpAmb: state addresses are those of homologation where a
    // state has two, and built QR codes have nothing in its place. Notes rely on their ready texts.
    QString environment;
    QString emissionType;   // "1" normal, anything else contingency
    QString issuerCnpjLine; // "CNPJ NN.NNN.NNN/NNNN-NN"
    QString issuerName;
    QString issuerAddress; // in one line, not trimmed
    QString issuerIe;
    QString recipientCnpj; // NN.NNN.NNN/NNNN-NN
    QString recipientCpf;  // NNN.NNN.NNN-NN
    QString recipientForeignId;
    QString recipientName;
    QString recipientAddress; // the place of delivery, in one line
    std::vector<NfceItem> items;
    std::vector<NfcePayment> payments;
    QString freight;
    QString insurance;
    QString discount;
    QString otherCharges;
    QString total;
    QString change;
    QString accessKey;         // 44 digits
    QString consultationBlock; // consultation address, line feed, the key in groups of four
    QString protocolNumber;
    QString authorisationDateTime;
    QString fiscalRemarks;
    QString taxpayerRemarks;
    QString approximateTaxes;
    QString digestValue; // base64

    // What the receipt under today's rules takes besides. Read from every note, also from one that is
    // not read beyond its date.
    QString documentModel;   // "65" NFC-e, "55" NF-e
    QString printFormat;     // tpImp
    QString environmentType; // tpAmb: "1" production, "2" test
    QString presence;        // indPres
    QString issuerCnpj;
    QString issuerCpf;
    QString issuerPlace;    // the address with single blanks
    QString recipientPlace; // the place of delivery, else the recipient's own address, likewise
    QString protocolMessage;
    bool hasConsumptionTaxes = false; // the group IBSCBSTot is there
    QString cbs;
    QString ibs;
    QString selectiveTax; // IS

private:
    /** A field below infNFe. */
    QString fieldAt(const FieldPath& path) const { return textAt("nfeProc|NFe|infNFe|" + path); }

    /** The address in a group ("entrega"), its fields in one line; behindStreet stands between the
     *  street and the number. */
    QString postalAddressAt(const FieldPath& group, const char* behindStreet) const;

    /** The same with single blanks; empty without the group. */
    QString placeAt(const FieldPath& group, const char* behindStreet) const;

    int readFields();
    bool readConsultationBlock();
    void readIssuer();
    void readRecipient();
    void readItems();
    void readTotals();
    void readPayments();
    void readForTodaysRules();
};

} // namespace q7

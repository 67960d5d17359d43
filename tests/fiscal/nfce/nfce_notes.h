// Notes to print, as they are and changed, and the printer that gets them.
#pragma once

#include "export_fixture.h"

namespace q7test
{

/** The text of a document of the examples, or of those that are there for the tests alone. */
std::string document(const std::string& name);

/** What to change in a note: the first `from`, which must be there, becomes `to`. */
struct Edit {
    std::string from;
    std::string to;
};

std::string edited(std::string xml, const std::vector<Edit>& edits);

/** Puts something else in the place of the first element of this name. */
std::string without(std::string xml, const std::string& element, const std::string& instead = {});

/** Whether these lines, in the form of golden files, stand one behind the other in the bytes. */
testing::AssertionResult contains(const std::string& bytes, const std::vector<std::string>& lines);

/** What a call answers that prints nothing. */
struct Refusal {
    std::string xml;
    int result;
    int options = 0;
    const char* csc = "TOKEN";
};

class NfceTest : public ExportTest
{
protected:
    void openModel(const std::string& model);

    /** What the printer gets of a note that is printed. */
    std::string printed(const std::string& xml, int options = 0, int cscId = 1,
                        const char* csc = "");

    /** Nothing of these notes gets to the printer, nor a result into the log. */
    void expectRefused(const std::vector<Refusal>& rows);
};

/** A document on a model, with the golden file that has its receipt. */
struct Receipt {
    const char* name; // of the golden file
    const char* document;
    const char* model;
    int options;
};

class ReceiptTest : public NfceTest, public testing::WithParamInterface<Receipt>
{
protected:
    testing::AssertionResult isAsLaidOut();
};

} // namespace q7test

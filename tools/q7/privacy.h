// What must not leave a shop: taken out of what is sent to the support.
#pragma once

#include <string>
#include <string_view>

namespace q7tool
{

/** A text in which CPF and CNPJ numbers, formatted or not, are "***". Access keys stay. */
std::string withoutPersonalNumbers(std::string_view text);

/** A log message without documents and without the CSC: the arguments of the functions that take an
 *  XML are its size, and "***" for what stands between the first and the last of the others. */
std::string withoutDocument(const std::string& logMessage);

/** An INI file's text in which the values of keys that name a secret are "***". */
std::string withoutSecrets(std::string_view ini);

} // namespace q7tool

// The names of payment methods, the same in every fiscal document.
#pragma once

#include <QString>

namespace q7
{

/** The name of the method with this code ("01"; cMP, tPag). A code without a name keeps the name of
 *  the payment before it (empty for the first), which integrators' receipts have always shown. */
QString paymentMethodName(const QString& code, const QString& previousName);

} // namespace q7

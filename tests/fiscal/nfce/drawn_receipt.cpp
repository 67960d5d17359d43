#include "drawn_receipt.h"

#include "command_parser.h"
#include "symbols.h"
#include "table_glyphs.h"
#include "typesetter.h"

#include <regex>
#include <zbar.h>

namespace q7test
{
namespace
{

using namespace virtual_printer;

class ReceiptPaper : public Paper
{
public:
    void print(const Bitmap& dots, int advanceDots, std::string_view text) override
    {
        m_widthDots = std::max(m_widthDots, dots.width());
        m_strips.push_back({dots, m_heightDots});
        m_heightDots += advanceDots;
        (m_receipt.text += text) += '\n';
    }
    void feed(int dots) override { m_heightDots += dots; }
    void cut() override { m_ended = true; }
    void note(std::string_view text) override { m_receipt.losses.emplace_back(text); }

    void lose(std::string_view what) { m_receipt.losses.emplace_back(what); }
    bool hasEnded() const { return m_ended; }
    bool isBlank() const { return m_strips.empty(); }

    DrawnReceipt take(int dotPixels) const
    {
        DrawnReceipt receipt = m_receipt;
        const int width = (m_widthDots + 2 * margin) * dotPixels;
        const int height = (m_heightDots + 2 * margin) * dotPixels;
        std::string grey(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                         '\xFF');
        for (const Strip& strip : m_strips)
            for (int y = 0; y < strip.dots.height() * dotPixels; ++y)
                for (int x = 0; x < strip.dots.width() * dotPixels; ++x)
                    if (strip.dots.at(x / dotPixels, y / dotPixels))
                        grey[static_cast<std::size_t>(((strip.top + margin) * dotPixels + y) *
                                                          width +
                                                      margin * dotPixels + x)] = 0;
        zbar::Image image(static_cast<unsigned>(width), static_cast<unsigned>(height), "Y800",
                          grey.data(), grey.size());
        zbar::ImageScanner scanner;
        scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 1);
        scanner.scan(image);
        for (auto symbol = image.symbol_begin(); symbol != image.symbol_end(); ++symbol)
            receipt.symbols.push_back(symbol->get_type_name() + ":" + symbol->get_data());
        return receipt;
    }

private:
    struct Strip {
        Bitmap dots;
        int top;
    };
    static constexpr int margin = 32; // of the paper, in dots

    DrawnReceipt m_receipt;
    std::vector<Strip> m_strips;
    int m_widthDots = 0;
    int m_heightDots = 0;
    bool m_ended = false;
};

// What a reset has always taken away: the end of a separator and the key's second time.
bool isLeftOver(const std::string& remark)
{
    static const std::regex leftOver(
        "the reset throws away .* not yet printed: (-+|([0-9A-Z]{4} ){11})");
    return std::regex_match(remark, leftOver);
}

} // namespace

std::vector<DrawnReceipt> drawn(const std::string& bytes, const std::string& model, int dotPixels)
{
    static TableGlyphs glyphs;
    const Graphics graphics = {{"00", Bitmap(180, 180)}};
    std::vector<DrawnReceipt> receipts;
    const std::vector<Command> commands = parseAll(bytes);
    for (std::size_t next = 0; next < commands.size();) {
        ReceiptPaper paper;
        Typesetter typesetter(*findModel(model), glyphs, graphics, paper,
                              [&paper](std::uint64_t /*offset*/, std::string_view remark) {
                                  if (!isLeftOver(std::string(remark)))
                                      paper.lose(remark);
                              });
        while (next < commands.size() && !paper.hasEnded())
            typesetter.command(commands[next++]);
        typesetter.finish(bytes.size());
        if (!paper.isBlank())
            receipts.push_back(paper.take(dotPixels));
    }
    return receipts;
}

int smallestQrSide(const std::string& text)
{
    return encodeQr(text, QrLevel::M, 1, 177).dots.width();
}

} // namespace q7test

/** \file receipt_files.h
 *  The receipts of one connection as files: a picture and a text each.
 */
#ifndef Q7_VIRTUAL_PRINTER_RECEIPT_FILES_H
#define Q7_VIRTUAL_PRINTER_RECEIPT_FILES_H

#include "paper.h"
#include "picture.h"

#include <fstream>
#include <functional>
#include <memory>
#include <optional>

namespace virtual_printer
{

/** Paper that a cut or the end of the connection divides into receipts STEM-1, STEM-2, ... */
class ReceiptFiles : public Paper
{
public:
    using Written = std::function<void(const std::string& path)>;

    /** pictureGlyphs: null for texts without pictures; must outlive this.
     *  written: told of every file once it is complete. */
    ReceiptFiles(std::string stem, int widthDots, Glyphs* pictureGlyphs, Written written);

    void print(const Bitmap& dots, int advanceDots, std::string_view text) override;
    void feed(int dots) override;
    void cut() override;
    void note(std::string_view text) override;
    /** The connection has ended. */
    void end();

private:
    void begin();
    void endReceipt(Picture::End how);

    std::string stem_;
    int widthDots_;
    Glyphs* glyphs_;
    Written written_;
    int number_ = 0;
    bool begun_ = false;
    std::string textPath_;
    std::ofstream text_;
    std::optional<Picture> picture_;
};

/** Opens a file for writing. Throws std::system_error. */
std::ofstream openForWriting(const std::string& path);

} // namespace virtual_printer

#endif

#include "tools/paint_pictures/deep_picture.h"

#include <QRgba64>

#include <cstdint>

namespace tarnel {

namespace {

// A thorough mix of the bits of a position (the finaliser of MurmurHash3, public domain).
std::uint32_t noiseAt(int x, int y) {
    std::uint32_t bits =
        static_cast<std::uint32_t>(x) * 0x9E3779B1u ^ static_cast<std::uint32_t>(y) * 0x85EBCA77u;
    bits ^= bits >> 16;
    bits *= 0x85EBCA6Bu;
    bits ^= bits >> 13;
    bits *= 0xC2B2AE35u;
    return bits ^ (bits >> 16);
}

// Rounds a 16-bit channel up or down to 8 bits; noise runs from 0 to 65535.
int roundedChannel(std::uint32_t channel, std::uint32_t noise) {
    constexpr std::uint32_t deepStepsPerStep = 257;
    const std::uint32_t threshold = noise * deepStepsPerStep >> 16;
    return static_cast<int>((channel + threshold) / deepStepsPerStep);
}

} // namespace

QImage deepPicture(QSize size) {
    QImage image(size, QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void useHalfSideUnits(QPainter& painter, int side) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(side / 2.0, side / 2.0);
    painter.setPen(Qt::NoPen);
}

QImage dithered(const QImage& deep) {
    const QImage source = deep.convertToFormat(QImage::Format_RGBA64);
    QImage result(source.size(), QImage::Format_ARGB32);
    for (int y = 0; y < source.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgba64*>(source.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            const std::uint32_t noise = noiseAt(x, y) & 0xFFFFu;
            to[x] = qRgba(
                roundedChannel(from[x].red(), noise), roundedChannel(from[x].green(), noise),
                roundedChannel(from[x].blue(), noise), roundedChannel(from[x].alpha(), noise));
        }
    }
    return result;
}

} // namespace tarnel

// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JpegWriter.h"

#include "RowSink.h"

#include "server/worker/pixels/EmbeddedBlock.h"
#include "server/worker/pixels/EmbeddedProfile.h"

#include <QByteArray>

#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <vector>

#include <jpeglib.h>

namespace BatchWorker {

namespace {

constexpr int bandsOfCmyk = 4;

/// Is destroyed too when the constructor of its owner fails.
struct Encoder : jpeg_compress_struct
{
    Encoder()
        : jpeg_compress_struct{}
    {
    }
    ~Encoder() { jpeg_destroy_compress(this); }

private:
    Q_DISABLE_COPY(Encoder)
};

/// The encoder of one file. It leaves its functions by a jump, so whatever calls one goes through Call(), and has
/// nothing to destroy.
class JpegEncoding
{
public:
    JpegEncoding(const Picture& picture, const JpegSettings& settings, const vips::VTarget& target)
        : target(target)
        , isInverted(picture.bands() == bandsOfCmyk)
        , inverted(isInverted ? std::size_t(picture.width() * bandsOfCmyk) : 0)
    {
        encoder.err = jpeg_std_error(&errors);
        errors.error_exit = GiveUp;
        errors.output_message = [](j_common_ptr) {};
        Call([&] {
            jpeg_create_compress(&encoder);
            encoder.client_data = this;
            WriteToTarget();
            Describe(picture, settings);
            jpeg_start_compress(&encoder, TRUE);
        });
    }

    void AddSegment(int marker, const QByteArray& bytes)
    {
        if (!bytes.isEmpty()) {
            Call([&] {
                jpeg_write_marker(&encoder, marker, reinterpret_cast<const JOCTET*>(bytes.constData()),
                                  unsigned(bytes.size()));
            });
        }
    }

    void AddProfile(const QByteArray& profile)
    {
        if (!profile.isEmpty()) {
            Call([&] {
                jpeg_write_icc_profile(&encoder, reinterpret_cast<const JOCTET*>(profile.constData()),
                                       unsigned(profile.size()));
            });
        }
    }

    void AddRow(const std::uint8_t* samples)
    {
        // The marker of Adobe, which the encoder writes into files of CMYK, means that 0 is full ink.
        for (std::size_t i = 0; i < inverted.size(); ++i) {
            inverted[i] = std::uint8_t(UINT8_MAX - samples[i]);
        }
        JSAMPROW row = isInverted ? inverted.data() : const_cast<JSAMPROW>(samples);
        Call([&] { jpeg_write_scanlines(&encoder, &row, 1); });
    }

    void Finish()
    {
        Call([&] { jpeg_finish_compress(&encoder); });
    }

private:
    Q_DISABLE_COPY(JpegEncoding)

    static JpegEncoding& Of(j_common_ptr encoder) { return *static_cast<JpegEncoding*>(encoder->client_data); }
    static JpegEncoding& Of(j_compress_ptr encoder) { return *static_cast<JpegEncoding*>(encoder->client_data); }

    [[noreturn]] static void GiveUp(j_common_ptr encoder) { std::longjmp(Of(encoder).givingUp, 1); }

    template<typename Work>
    void Call(const Work& work)
    {
        encoder.client_data = this;
        if (setjmp(givingUp) != 0) {
            std::array<char, JMSG_LENGTH_MAX> text;
            errors.format_message(reinterpret_cast<j_common_ptr>(&encoder), text.data());
            vips_error("JPEG", "%s", text.data());
            throw vips::VError();
        }
        work();
    }

    void Describe(const Picture& picture, const JpegSettings& settings)
    {
        encoder.image_width = JDIMENSION(picture.width());
        encoder.image_height = JDIMENSION(picture.height());
        encoder.input_components = picture.bands();
        encoder.in_color_space = isInverted ? JCS_CMYK : picture.bands() == 1 ? JCS_GRAYSCALE : JCS_RGB;
        jpeg_set_defaults(&encoder);
        jpeg_set_quality(&encoder, settings.quality, TRUE);
        if (settings.keepsFineColour) {
            for (int channel = 0; channel < encoder.num_components; ++channel) {
                encoder.comp_info[channel].h_samp_factor = 1;
                encoder.comp_info[channel].v_samp_factor = 1;
            }
        }
        if (settings.isProgressive) {
            jpeg_simple_progression(&encoder);
        }
        constexpr double millimetresOfInch = 25.4;
        constexpr UINT8 dotsPerInch = 1;
        encoder.write_JFIF_header = TRUE; // In CMYK too, whose resolution has no other place.
        encoder.density_unit = dotsPerInch;
        encoder.X_density = UINT16(std::lround(picture.xres() * millimetresOfInch));
        encoder.Y_density = UINT16(std::lround(picture.yres() * millimetresOfInch));
    }

    void WriteToTarget()
    {
        destination.init_destination = [](j_compress_ptr encoder) { Of(encoder).Rewind(); };
        destination.empty_output_buffer = [](j_compress_ptr encoder) -> boolean {
            JpegEncoding& self = Of(encoder);
            self.Write(self.block.size());
            self.Rewind();
            return TRUE;
        };
        destination.term_destination = [](j_compress_ptr encoder) {
            JpegEncoding& self = Of(encoder);
            self.Write(self.block.size() - self.destination.free_in_buffer);
        };
        encoder.dest = &destination;
    }

    void Rewind()
    {
        destination.next_output_byte = block.data();
        destination.free_in_buffer = block.size();
    }

    // The target remembers why it failed.
    void Write(std::size_t size) { vips_target_write(target.get_target(), block.data(), size); }

    vips::VTarget target;
    bool isInverted;
    std::vector<JSAMPLE> inverted;
    Encoder encoder;
    jpeg_error_mgr errors{};
    jpeg_destination_mgr destination{};
    std::jmp_buf givingUp{};
    std::array<JOCTET, 64 << 10> block{};
};

QByteArray XmpSegment(const QByteArray& xmp)
{
    return xmp.isEmpty() ? xmp : QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + xmp;
}

} // namespace

void WriteJpeg(const Picture& picture, const JpegSettings& settings, const vips::VTarget& target)
{
    constexpr int app1 = JPEG_APP0 + 1;
    constexpr int app13 = JPEG_APP0 + 13;
    JpegEncoding encoding(picture, settings, target);
    encoding.AddSegment(app1, BlockOf(picture, VIPS_META_EXIF_NAME));
    encoding.AddSegment(app1, XmpSegment(BlockOf(picture, VIPS_META_XMP_NAME)));
    encoding.AddSegment(app13, BlockOf(picture, VIPS_META_IPTC_NAME));
    encoding.AddProfile(ProfileOf(picture));
    SinkRows(picture, [&](const std::uint8_t* samples) { encoding.AddRow(samples); });
    encoding.Finish();
    if (vips_target_end(target.get_target()) != 0) {
        throw vips::VError();
    }
}

} // namespace BatchWorker

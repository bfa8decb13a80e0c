// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JpegTrial.h"

#include "server/worker/pixels/FileCalls.h"

#include <array>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <vector>

#include <jerror.h>
#include <jpeglib.h>

namespace BatchWorker {

namespace {

/// The decoder of one file, with what it complains of. The decoder leaves it by a jump, so that no function which it
/// calls has anything to destroy.
class JpegTrial
{
public:
    JpegTrial(int descriptor, qint64 pixels)
        : descriptor(descriptor)
        , pixels(pixels)
    {
    }
    ~JpegTrial() { jpeg_destroy_decompress(&decoder); }

    JpegExtent Run()
    {
        decoder.err = jpeg_std_error(&errors);
        errors.error_exit = GiveUp;
        errors.emit_message = NoteMessage;
        decoder.client_data = this;
        if (setjmp(givingUp) != 0) {
            return extent;
        }
        jpeg_create_decompress(&decoder);
        decoder.client_data = this;
        ReadFromFile();
        Decode();
        return extent;
    }

private:
    Q_DISABLE_COPY(JpegTrial)

    static JpegTrial& Of(j_common_ptr decoder) { return *static_cast<JpegTrial*>(decoder->client_data); }
    static JpegTrial& Of(j_decompress_ptr decoder) { return *static_cast<JpegTrial*>(decoder->client_data); }

    static void GiveUp(j_common_ptr decoder) { std::longjmp(Of(decoder).givingUp, 1); }

    // The entropy decoder says this once when the file has no more bits for a block.
    static void NoteMessage(j_common_ptr decoder, int)
    {
        JpegTrial& self = Of(decoder);
        if (decoder->err->msg_code == JWRN_HIT_MARKER && !self.lacksData) {
            self.lacksData = true;
            self.rowWithoutData = self.decoder.input_iMCU_row;
        }
    }

    static void Ignore(j_decompress_ptr) {}

    static boolean Fill(j_decompress_ptr decoder)
    {
        JpegTrial& self = Of(decoder);
        qint64 count = ReadAt(self.descriptor, self.block.data(), qint64(self.block.size()), self.position);
        if (count <= 0) {
            self.block[0] = 0xFF;
            self.block[1] = JPEG_EOI;
            count = 2;
        }
        self.position += count;
        self.source.next_input_byte = self.block.data();
        self.source.bytes_in_buffer = std::size_t(count);
        return TRUE;
    }

    static void Skip(j_decompress_ptr decoder, long count)
    {
        JpegTrial& self = Of(decoder);
        const std::size_t wanted = count > 0 ? std::size_t(count) : 0;
        if (wanted <= self.source.bytes_in_buffer) {
            self.source.next_input_byte += wanted;
            self.source.bytes_in_buffer -= wanted;
            return;
        }
        self.position += qint64(wanted - self.source.bytes_in_buffer);
        self.source.bytes_in_buffer = 0;
    }

    void ReadFromFile()
    {
        source.init_source = Ignore;
        source.fill_input_buffer = Fill;
        source.skip_input_data = Skip;
        source.resync_to_restart = jpeg_resync_to_restart;
        source.term_source = Ignore;
        decoder.src = &source;
    }

    void Decode()
    {
        jpeg_read_header(&decoder, TRUE);
        if (qint64(decoder.image_width) * decoder.image_height > pixels) {
            extent.kind = JpegExtent::Whole;
            return;
        }
        extent.kind = jpeg_has_multiple_scans(&decoder) ? JpegExtent::LacksDetail : JpegExtent::LacksRows;
        if (decoder.arith_code) {
            extent.kind = JpegExtent::LacksDetail; // this decoder fills up with zeros and does not say so
        } else if (jpeg_has_multiple_scans(&decoder)) {
            ReadScans();
        } else {
            ReadRows();
        }
    }

    void ReadRows()
    {
        decoder.scale_denom = 8; // the least work that decodes everything
        decoder.dct_method = JDCT_IFAST;
        jpeg_start_decompress(&decoder);
        row.resize(std::size_t(decoder.output_width) * std::size_t(decoder.output_components));
        JSAMPROW rows[] = {row.data()};
        while (decoder.output_scanline < decoder.output_height && !lacksData) {
            jpeg_read_scanlines(&decoder, rows, 1);
        }
        if (!lacksData) {
            extent.kind = JpegExtent::Whole;
        } else if (decoder.total_iMCU_rows > 0) {
            extent.percent = int(qint64(rowWithoutData) * 100 / decoder.total_iMCU_rows);
        }
    }

    void ReadScans()
    {
        decoder.buffered_image = TRUE;
        jpeg_start_decompress(&decoder);
        NoteScan();
        for (int got = jpeg_consume_input(&decoder); got != JPEG_REACHED_EOI; got = jpeg_consume_input(&decoder)) {
            if (got == JPEG_SUSPENDED || lacksData) {
                return;
            }
            if (got == JPEG_REACHED_SOS) {
                NoteScan();
            }
        }
        if (!lacksData && HasAllScans()) {
            extent.kind = JpegExtent::Whole;
        }
    }

    void NoteScan()
    {
        for (int i = 0; i < decoder.comps_in_scan; ++i) {
            isChannelThere[std::size_t(decoder.cur_comp_info[i]->component_index)] = true;
        }
    }

    // In a progressive file every coefficient has to come to its last bit.
    bool HasAllScans() const
    {
        for (int channel = 0; channel < decoder.num_components; ++channel) {
            if (!isChannelThere[std::size_t(channel)]) {
                return false;
            }
            for (int i = 0; decoder.progressive_mode && i < DCTSIZE2; ++i) {
                if (decoder.coef_bits[channel][i] != 0) {
                    return false;
                }
            }
        }
        return true;
    }

    jpeg_decompress_struct decoder{};
    jpeg_error_mgr errors{};
    jpeg_source_mgr source{};
    std::jmp_buf givingUp{};
    int descriptor;
    qint64 pixels;
    qint64 position = 0;
    std::array<std::uint8_t, 64 << 10> block{};
    std::vector<JSAMPLE> row;
    std::array<bool, MAX_COMPONENTS> isChannelThere{};
    bool lacksData = false;
    JDIMENSION rowWithoutData = 0;
    JpegExtent extent;
};

} // namespace

JpegExtent ExtentOfJpeg(int descriptor, qint64 pixels)
{
    return JpegTrial(descriptor, pixels).Run();
}

} // namespace BatchWorker

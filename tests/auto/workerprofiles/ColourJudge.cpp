// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourJudge.h"

#include "TestPictures.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace ColourJudge {

namespace {

using Profile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;

QByteArray Saved(cmsHPROFILE profile)
{
    const Profile owned(profile, cmsCloseProfile);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(int(size), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    return bytes;
}

using Curve = std::unique_ptr<cmsToneCurve, decltype(&cmsFreeToneCurve)>;

Curve CurveOf(const std::function<double(double)>& light)
{
    constexpr int steps = 4096;
    std::vector<float> values;
    for (int i = 0; i < steps; ++i) {
        values.push_back(float(light(i / double(steps - 1))));
    }
    return {cmsBuildTabulatedToneCurveFloat(nullptr, steps, values.data()), cmsFreeToneCurve};
}

Profile Opened(const QByteArray& bytes)
{
    return {bytes.isEmpty() ? cmsCreate_sRGBProfile()
                            : cmsOpenProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size())),
            cmsCloseProfile};
}

Colour Unscrambled(const Colour& values)
{
    const double green = values[1];
    const auto within = [](double value) { return std::clamp(value, 0.0, 1.0); };
    return {within(green + 2 * (values[0] - 0.5)), green, within(green + 2 * (values[2] - 0.5))};
}

struct Sampled
{
    bool isScrambled;
    cmsHTRANSFORM toLab;
};

cmsInt32Number SampleTable(const cmsUInt16Number in[], cmsUInt16Number out[], void* cargo)
{
    const auto* sampled = static_cast<const Sampled*>(cargo);
    const Colour values{in[0] / 65'535.0, in[1] / 65'535.0, in[2] / 65'535.0};
    const Colour rgb = sampled->isScrambled ? Unscrambled(values) : values;
    cmsDoTransform(sampled->toLab, rgb.data(), out, 1);
    return TRUE;
}

} // namespace

QByteArray RgbProfile(const Points& points, const std::function<double(double)>& light)
{
    const cmsCIExyY white{points[0], points[1], 1.0};
    const cmsCIExyYTRIPLE primaries{
        {points[2], points[3], 1.0}, {points[4], points[5], 1.0}, {points[6], points[7], 1.0}};
    const Curve curve = CurveOf(light);
    cmsToneCurve* curves[3] = {curve.get(), curve.get(), curve.get()};
    return Saved(cmsCreateRGBProfile(&white, &primaries, curves));
}

QByteArray GreyProfile(const std::function<double(double)>& light)
{
    return Saved(cmsCreateGrayProfile(cmsD50_xyY(), CurveOf(light).get()));
}

double SrgbLight(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double TelevisionLight(double value)
{
    return value < 0.081 ? value / 4.5 : std::pow((value + 0.099) / 1.099, 1.0 / 0.45);
}

std::function<double(double)> Power(double exponent)
{
    return [exponent](double value) { return std::pow(value, exponent); };
}

QByteArray TableProfile(bool isScrambled)
{
    const Profile space = Opened(RgbProfile(displayP3, Power(2.2)));
    const Profile lab(cmsCreateLab4Profile(nullptr), cmsCloseProfile);
    Sampled sampled{isScrambled, cmsCreateTransform(space.get(), TYPE_RGB_DBL, lab.get(), TYPE_Lab_16,
                                                    INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE)};
    constexpr int steps = 33;
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, steps, 3, 3, nullptr);
    cmsStageSampleCLut16bit(table, SampleTable, &sampled, 0);
    cmsDeleteTransform(sampled.toLab);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, 3, 3);
    cmsPipelineInsertStage(pipeline, cmsAT_END, cmsStageAllocToneCurves(nullptr, 3, nullptr));
    cmsPipelineInsertStage(pipeline, cmsAT_END, table);
    cmsPipelineInsertStage(pipeline, cmsAT_END, cmsStageAllocToneCurves(nullptr, 3, nullptr));

    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 4.3);
    cmsSetDeviceClass(profile, cmsSigDisplayClass);
    cmsSetColorSpace(profile, cmsSigRgbData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsMLU* name = cmsMLUalloc(nullptr, 1);
    cmsMLUsetASCII(name, "en", "US", "a table");
    cmsWriteTag(profile, cmsSigProfileDescriptionTag, name);
    cmsMLUfree(name);
    cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    const QByteArray bytes = Saved(profile);
    cmsPipelineFree(pipeline);
    return bytes;
}

Colour Scrambled(const Colour& rgb)
{
    return {0.5 + (rgb[0] - rgb[1]) / 2, rgb[1], 0.5 + (rgb[2] - rgb[1]) / 2};
}

cmsCIELab Lab(const QByteArray& profile, const Colour& values)
{
    const Profile opened = Opened(profile);
    const Profile lab(cmsCreateLab4Profile(nullptr), cmsCloseProfile);
    cmsCIELab colour{-1000, 0, 0};
    if (!opened) {
        return colour;
    }
    const bool isGrey = cmsGetColorSpace(opened.get()) == cmsSigGrayData;
    const cmsHTRANSFORM transform = cmsCreateTransform(opened.get(), isGrey ? TYPE_GRAY_DBL : TYPE_RGB_DBL, lab.get(),
                                                       TYPE_Lab_DBL, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
    if (transform) {
        cmsDoTransform(transform, values.data(), &colour, 1);
        cmsDeleteTransform(transform);
    }
    return colour;
}

double LargestDeltaE(const QByteArray& profile, const QVector<Colour>& expected, const QByteArray& foundProfile,
                     const QVector<Colour>& found)
{
    if (expected.size() != found.size() || expected.isEmpty()) {
        return std::numeric_limits<double>::infinity();
    }
    double largest = 0.0;
    for (int i = 0; i < expected.size(); ++i) {
        const cmsCIELab one = Lab(profile, expected[i]);
        const cmsCIELab other = Lab(foundProfile, found[i]);
        largest = std::max(largest, cmsDeltaE(&one, &other));
    }
    return largest;
}

QByteArray SpaceOf(const QByteArray& profile)
{
    constexpr int place = 16; // in the header of ICC.1
    return profile.mid(36, 4) == "acsp" ? profile.mid(place, 4) : QByteArray();
}

QVector<Colour> PatchesOf(const QString& path, int count)
{
    const BatchWorker::Picture picture = ReadPicture(path);
    const double largest = picture.format() == VIPS_FORMAT_USHORT ? 65'535.0 : 255.0;
    QVector<Colour> patches;
    for (int i = 0; i < count; ++i) {
        const int x = int((i + 0.5) * picture.width() / count);
        const std::vector<double> values = picture.getpoint(x, picture.height() / 2);
        const bool isGrey = values.size() < 3;
        patches.append({values[0] / largest, values[isGrey ? 0 : 1] / largest, values[isGrey ? 0 : 2] / largest});
    }
    return patches;
}

} // namespace ColourJudge

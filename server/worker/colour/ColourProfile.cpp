#include "ColourProfile.h"

#include <lcms2.h>

#include <array>
#include <memory>
#include <sys/mman.h>
#include <unistd.h>

namespace BatchWorker {

namespace {

struct CloseProfile
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

Profile Open(const QByteArray& bytes)
{
    return Profile(cmsOpenProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size())));
}

bool DescribesPictures(cmsHPROFILE profile)
{
    switch (cmsGetDeviceClass(profile)) {
    case cmsSigInputClass:
    case cmsSigDisplayClass:
    case cmsSigOutputClass:
    case cmsSigColorSpaceClass:
        return true;
    default:
        return false;
    }
}

} // namespace

std::optional<ColourKind> KindOfProfile(const QByteArray& profile)
{
    const Profile opened = Open(profile);
    if (!opened || !DescribesPictures(opened.get())) {
        return std::nullopt;
    }
    switch (cmsGetColorSpace(opened.get())) {
    case cmsSigGrayData:
        return ColourKind::Grey;
    case cmsSigRgbData:
        return ColourKind::Rgb;
    case cmsSigCmykData:
        return ColourKind::Cmyk;
    default:
        return std::nullopt;
    }
}

bool IsSrgb(const QByteArray& profile)
{
    const Profile opened = Open(profile);
    if (!opened || cmsGetColorSpace(opened.get()) != cmsSigRgbData) {
        return false;
    }
    std::array<char, 256> text{};
    cmsGetProfileInfoASCII(opened.get(), cmsInfoDescription, "en", "US", text.data(), cmsUInt32Number(text.size()));
    return QByteArray(text.data()).contains("sRGB");
}

ProfileFile::ProfileFile(const QByteArray& profile)
    : descriptor(memfd_create("profile", MFD_CLOEXEC))
{
    if (descriptor >= 0 && write(descriptor, profile.constData(), std::size_t(profile.size())) == profile.size()) {
        name = "/proc/self/fd/" + QByteArray::number(descriptor);
    }
}

ProfileFile::~ProfileFile()
{
    if (descriptor >= 0) {
        close(descriptor);
    }
}

} // namespace BatchWorker

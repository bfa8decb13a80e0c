// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Places.h"

#include "RemoveEntries.h"
#include "SourceTraces.h"
#include "XmpPath.h"

#include <QByteArrayList>

#include <algorithm>
#include <initializer_list>

namespace BatchWorker {

namespace {

// The address of the photographer or of an agency is not that of the picture, and the place of a subject is one of
// pixels.
bool IsOfAnother(const QByteArray& name)
{
    return name.startsWith("ciadr") || name.startsWith("licensor") || name == "subjectlocation" ||
           name == "subjectarea";
}

// "Longtitude" is what some drones write.
bool HoldsWordOfPlace(const QByteArray& name)
{
    static const std::initializer_list<const char*> words{
        "gps",     "latitude", "longitude",    "longtitude", "altitude",  "coordinate", "geotag", "geoloc",
        "geohash", "location", "worldregion",  "country",    "province",  "locality",   "county", "placename",
        "geoname", "landmark", "municipality", "continent",  "waterbody", "island"};
    return std::any_of(words.begin(), words.end(), [&name](const char* word) { return name.contains(word); });
}

bool IsNameOfPlace(const QByteArray& name)
{
    static const QByteArrayList names{"lat",     "lon",      "lng",   "long",     "alt",     "city",         "state",
                                      "place",   "position", "point", "address",  "street",  "neighborhood", "venue",
                                      "zipcode", "postcode", "poi",   "coverage", "hometown"};
    return names.contains(name);
}

// Such as "HomeLat", "rtk_lon" and "HomeTownCity".
bool EndsWithWordOfPlace(const QByteArray& name)
{
    static const QByteArrayList ends{"Lat", "Lon", "Lng", "City", "_lat", "_lon", "_lng", "_alt", "_long", "_city"};
    return std::any_of(ends.begin(), ends.end(), [&name](const QByteArray& end) { return name.endsWith(end); });
}

// The two namespaces consist of positions (W3C, Darwin Core).
bool IsStepOfPlace(const XmpStep& step)
{
    if (step.space == "geo" || step.space == "dwc") {
        return true;
    }
    const QByteArray name = step.name.toLower();
    return !IsOfAnother(name) && (HoldsWordOfPlace(name) || IsNameOfPlace(name) || EndsWithWordOfPlace(step.name));
}

bool IsPlace(const Exiv2::Iptcdatum& entry)
{
    using Exiv2::IptcDataSets;
    static const std::initializer_list<std::uint16_t> places{
        IptcDataSets::LocationCode,  IptcDataSets::LocationName, IptcDataSets::City,       IptcDataSets::SubLocation,
        IptcDataSets::ProvinceState, IptcDataSets::CountryCode,  IptcDataSets::CountryName};
    return entry.record() == IptcDataSets::application2 &&
           std::find(places.begin(), places.end(), entry.tag()) != places.end();
}

bool IsPlace(const Exiv2::Xmpdatum& entry)
{
    const QVector<XmpStep> steps = StepsOf(entry);
    return std::any_of(steps.begin(), steps.end(), IsStepOfPlace);
}

} // namespace

void RemovePlaces(Exiv2::ExifData& exif)
{
    RemoveIf(exif,
             [](const Exiv2::Exifdatum& entry) { return IsPosition(entry) || IsMakerNote(entry) || IsUnknown(entry); });
}

void RemovePlaces(Exiv2::IptcData& iptc)
{
    RemoveIf(iptc, [](const Exiv2::Iptcdatum& entry) { return IsPlace(entry); });
}

void RemovePlaces(Exiv2::XmpData& xmp)
{
    RemoveIf(xmp, [](const Exiv2::Xmpdatum& entry) { return IsPlace(entry); });
}

bool IsPosition(const Exiv2::Exifdatum& entry)
{
    return entry.groupName() == "GPSInfo" || entry.key() == "Exif.Image.GPSTag";
}

} // namespace BatchWorker

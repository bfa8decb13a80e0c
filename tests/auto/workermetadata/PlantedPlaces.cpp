// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedPlaces.h"

namespace PlantedMetadata {

const QByteArray& XmpWithPlaces()
{
    static const QByteArray xmp = R"(<rdf:Description rdf:about=""
  xmlns:exif="http://ns.adobe.com/exif/1.0/" xmlns:photoshop="http://ns.adobe.com/photoshop/1.0/"
  xmlns:Iptc4xmpCore="http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/"
  xmlns:Iptc4xmpExt="http://iptc.org/std/Iptc4xmpExt/2008-02-29/" xmlns:dc="http://purl.org/dc/elements/1.1/"
  xmlns:drone-dji="http://www.dji.com/drone-dji/1.0/" xmlns:drone-parrot="http://www.parrot.com/drone-parrot/1.0/"
  xmlns:Camera="http://pix4d.com/camera/1.0" xmlns:geo="http://www.w3.org/2003/01/geo/wgs84_pos#"
  xmlns:xmpDM="http://ns.adobe.com/xmp/1.0/DynamicMedia/" xmlns:any="http://example.org/any/1.0/"
  exif:GPSLatitude="Place01" exif:GPSLongitude="Place02" exif:GPSAltitude="Place03" exif:GPSDestLatitude="Place04"
  photoshop:City="Place05" photoshop:State="Place06" photoshop:Country="Place07"
  Iptc4xmpCore:Location="Place08" Iptc4xmpCore:CountryCode="Place09"
  drone-dji:GpsLatitude="41.0123401" drone-dji:GpsLongtitude="41.0123402" drone-dji:AbsoluteAltitude="41.0123403"
  drone-dji:RelativeAltitude="41.0123404" drone-dji:RtkStdLon="41.0123405"
  drone-parrot:latitude="41.0123406" Camera:GPSXYAccuracy="41.0123407" geo:lat="41.0123408" geo:long="41.0123409"
  xmpDM:shotLocation="Place10" any:HomeLongitude="41.0123410" any:pos_lat="41.0123411"
  drone-dji:GimbalYawDegree="+7.5" dc:format="image/jpeg">
 <dc:coverage>Place11</dc:coverage>
 <dc:description><rdf:Alt><rdf:li xml:lang="x-default">Stays</rdf:li></rdf:Alt></dc:description>
 <Iptc4xmpCore:CreatorContactInfo Iptc4xmpCore:CiAdrCity="Studio"/>
 <Iptc4xmpExt:LocationCreated><rdf:Bag><rdf:li Iptc4xmpExt:City="Place12" Iptc4xmpExt:Sublocation="Place13"
   Iptc4xmpExt:CountryName="Place14" Iptc4xmpExt:WorldRegion="Place15" exif:GPSLatitude="Place16"
   exif:GPSAltitude="Place17"/></rdf:Bag></Iptc4xmpExt:LocationCreated>
 <Iptc4xmpExt:LocationShown><rdf:Bag><rdf:li rdf:parseType="Resource"><Iptc4xmpExt:LocationId><rdf:Bag>
   <rdf:li>Place18</rdf:li></rdf:Bag></Iptc4xmpExt:LocationId><Iptc4xmpExt:LocationName><rdf:Alt>
   <rdf:li xml:lang="x-default">Place19</rdf:li></rdf:Alt></Iptc4xmpExt:LocationName></rdf:li>
   <rdf:li Iptc4xmpExt:ProvinceState="Place20"/></rdf:Bag></Iptc4xmpExt:LocationShown>
 <any:Shots><rdf:Seq><rdf:li rdf:parseType="Resource"><any:Where rdf:parseType="Resource">
   <any:Longtitude>41.0123412</any:Longtitude><any:City>Place21</any:City></any:Where><any:Title>Kept</any:Title>
   </rdf:li></rdf:Seq></any:Shots>
</rdf:Description>)";
    return xmp;
}

Blocks WithPlaces()
{
    Blocks blocks;
    Exiv2::ExifData& exif = blocks.exif;
    exif["Exif.Image.Make"] = "Panasonic";
    exif["Exif.Image.Artist"] = "A. Photographer";
    exif["Exif.Photo.FNumber"] = Exiv2::URational(4, 1);
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLatitude"] = "41/1 0/1 1234567/1000";
    exif["Exif.GPSInfo.GPSAreaInformation"] = "Place40";
    AddBytes(exif, "Exif.Panasonic.0x006d", "Place41"); // the city of the guide for travellers
    AddBytes(exif, "Exif.Photo.0xfdab", "Place42");
    Exiv2::IptcData& iptc = blocks.iptc;
    iptc["Iptc.Application2.Caption"] = "Stays";
    iptc["Iptc.Application2.LocationCode"] = "Place50";
    iptc["Iptc.Application2.LocationName"] = "Place51";
    iptc["Iptc.Application2.City"] = "Place52";
    iptc["Iptc.Application2.SubLocation"] = "Place53";
    iptc["Iptc.Application2.ProvinceState"] = "Place54";
    iptc["Iptc.Application2.CountryCode"] = "Place55";
    iptc["Iptc.Application2.CountryName"] = "Place56";
    blocks.xmp = Xmp(XmpWithPlaces());
    return blocks;
}

} // namespace PlantedMetadata

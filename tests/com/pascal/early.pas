{ An early-bound host in Pascal, with the unit made from the type library. }
program early;
{$mode delphi}{$codepage utf8}
uses
  SysUtils, ActiveX, ComObj, ORVE3_BS6399_2_3_0_TLB;
var
  passed, failed: Integer;
  windCase: IclsCurrentCase;
  building: IclsBuildingDimensions;
  site: IclsDynamicPressure;
  sector: Integer;
  one: Single = 1;
  two: Single = 2;
  three: Single = 3;
  four: Single = 4;
  five: Single = 5;

procedure Check(const found, expected, what: string);
begin
  if found = expected then
    Inc(passed)
  else begin
    Inc(failed);
    WriteLn('FAILED ', what, ': "', found, '" instead of "', expected, '"');
  end;
end;

begin
  CoInitialize(nil);
  windCase := CoclsCurrentCase.Create;
  windCase.Initialize_BreApps;
  building := windCase.BuildingDimensions;
  building.OrientationUnknown := False;
  building.Orientation := 90;
  building.RoofType := RoofTypes_Hipped_roof;
  Check(IntToStr(building.RoofType), '6', 'an enumeration');
  building.RoofType := RoofTypes_Flat_roof_with_sharp_eaves;
  building.Face1And3_Length := 24;
  building.Face2And4_Width := 12;
  building.Roof_Height := 5.5;
  building.Roof_Diagonal := 8;
  site := windCase.DynamicPressure;
  site.SiteAltitude := 40;
  site.BasicWindSpeed := 22;
  for sector := 0 to 11 do site.FetchesToSea[sector] := 30;
  Check(FloatToStr(site.FetchesToSea[11]), '30', 'an indexed property');
  Check(Format('%.4f', [windCase.OverallAppliedLoads.ExternalBayLoad(five, five, five, one, two, three, two, four)]), '1.6000',
    'a method with eight arguments');
  windCase.Description := 'Grüße m²';
  Check(UTF8Encode(windCase.Description), 'Grüße m²', 'a text');
  Check(UTF8Encode((windCase as IclsLibrary).PublishedText('Faces', 1)), 'Face 2', 'the further interface');
  try
    windCase.OverallAppliedLoads.CantileverZoneDescription[99];
    Check('nothing', 'an error', 'a zone that is not there');
  except
    on error: EOleException do Check(IntToStr(error.ErrorCode and $FFFF), '9', 'the number of an error');
  end;
  WriteLn(passed, ' passed, ', failed, ' failed');
end.

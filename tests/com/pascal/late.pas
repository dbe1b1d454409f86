{ A late-bound host in Pascal, whose runtime lets floating-point exceptions trap. }
program late;
{$mode delphi}{$codepage utf8}
uses
  SysUtils, Variants, ActiveX, ComObj;
var
  passed, failed: Integer;
  windCase, building, site, loads, zones: OleVariant;
  sector: Integer;

procedure Check(const found: OleVariant; const expected, what: string);
begin
  if UTF8Encode(UnicodeString(found)) = expected then
    Inc(passed)
  else begin
    Inc(failed);
    WriteLn('FAILED ', what, ': "', UTF8Encode(UnicodeString(found)), '" instead of "', expected, '"');
  end;
end;

procedure CheckOverflow;
begin
  try
    building.Orientation := 40000;
    Check('nothing', 'an error', 'a number that does not fit');
  except
    on error: EOleException do Check(error.ErrorCode and $FFFF, '6', 'the number of an error');
  end;
end;

begin
  CoInitialize(nil);
  windCase := CreateOleObject('ORVE3_BS6399_2.clsCurrentCase');
  windCase.Initialize_BreApps;
  building := windCase.BuildingDimensions;
  site := windCase.DynamicPressure;
  Check(site.FetchesToSea[11], '0', 'a reading without a height');
  CheckOverflow;
  building.OrientationUnknown := False;
  building.ORIENTATION := 90;
  building.Face1And3_Length := 24;
  building.Face2And4_Width := 12;
  building.Roof_Height := 5.5;
  building.Roof_Diagonal := 8;
  building.Wall_SideHeight := 5;
  building.Wall_SideDiagonal := 7;
  building.Wall_GableHeight := 5.5;
  building.Wall_GableDiagonal := 7.5;
  site.SiteAltitude := 40;
  site.BasicWindSpeed := 22;
  for sector := 0 to 11 do site.FetchesToSea[sector] := 30;
  Check(site.FetchesToSea[11], '30', 'an indexed property');
  zones := windCase.ExternalCoefficients;
  Check(zones.Hybrid_ZoneDescription(Face := 0, ZoneIndex := 0, BuildingArea := 0), 'A', 'named arguments');
  windCase.InternalCoefficients.InternalVolume := 24 * 12 * 5;
  windCase.InternalCoefficients.EnclosedBuilding_GeneralCase := True;
  loads := windCase.OverallAppliedLoads;
  Check(loads.Hybrid_OverallAppliedLoads(0, 0, 0), '-1.217 kN/m²', 'a load');
  windCase.Description := EncodeDate(2026, 11, 24);
  Check(windCase.Description, '2026-11-24', 'a date given to a text');
  WriteLn(passed, ' passed, ', failed, ' failed');
end.

{ Writes the Pascal unit of the registered type library: import LIBRARY FOLDER. }
program import;
{$mode objfpc}{$H+}
uses
  SysUtils, Classes, ActiveX, typelib;
var
  unitName, text, package, registration: string;
  dependencies: TStringList;
  output: TStringList;
begin
  dependencies := TStringList.Create;
  output := TStringList.Create;
  text := ImportTypelib(WideString(ParamStr(1)), unitName, dependencies, False, False, False, package, registration);
  output.Text := text;
  output.SaveToFile(ParamStr(2) + '\' + unitName + '.pas');
  WriteLn(unitName);
end.

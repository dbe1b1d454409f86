// A JScript host: a record as an array. The last line tells how many checks passed and failed.
var fields = ["0", "0", "0", "0", "0"], i;
for (i = 5; i < 21; ++i) fields[i] = ["3.6 m", "+0.512 kN/m\u00B2"];
var pressures = new ActiveXObject("ORVE3_BS6399_2.clsCantileverWindLoads");
pressures.ExternalPressures = fields;
var number = 0;
try {
  pressures.ExternalPressures = ["0"];
} catch (error) {
  number = error.number & 0xFFFF;
}
WScript.Echo(number === 13 ? "1 passed, 0 failed" : "0 passed, 1 failed");

// Amounts as the player's system writes money: a browser tells the language and the country alone,
// and this says what is paid with there.

// These are paid with in the one country that their first two letters name.
const own = "AED AFN ALL AMD AOA ARS AWG AZN BAM BBD BDT BHD BIF BMD BND BOB BRL BSD BTN BWP BYN BZD " +
  "CAD CDF CLP CNY COP CRC CUP CVE CZK DJF DOP DZD EGP ERN ETB FJD FKP GEL GHS GIP GMD GNF GTQ GYD " +
  "HKD HNL HTG HUF IDR INR IQD IRR ISK JMD JOD JPY KES KGS KHR KMF KPW KRW KWD KYD KZT LAK LBP LKR " +
  "LRD LYD MDL MGA MKD MMK MNT MOP MRU MUR MVR MWK MXN MYR MZN NAD NGN NIO NPR OMR PAB PEN PGK PHP " +
  "PKR PLN PYG QAR RON RSD RUB RWF SAR SBD SCR SDG SEK SGD SHP SLE SOS SRD SSP STN SYP SZL THB TJS " +
  "TMT TND TOP TRY TTD TWD TZS UAH UGX UYU UZS VES VND VUV WST YER ZMW";
const shared = {
  AUD: "AU CC CX KI NF NR TV", CHF: "CH LI", DKK: "DK FO GL", GBP: "GB GG IM JE", ILS: "IL PS",
  EUR: "AD AT AX BE BG BL CY DE EA EE ES FI FR GF GP GR HR IC IE IT LT LU LV MC ME MF MQ MT NL PM PT " +
    "RE SI SK SM VA XK YT",
  MAD: "EH MA", NOK: "NO SJ", NZD: "CK NU NZ PN TK",
  USD: "AS BQ DG EC FM GU IO MH MP PR PW SV TC TL UM US VG VI ZW",
  XAF: "CF CG CM GA GQ TD", XCD: "AG AI DM GD KN LC MS VC", XCG: "CW SX",
  XOF: "BF BJ CI GW ML NE SN TG", XPF: "NC PF WF", ZAR: "LS ZA",
};

function currencyOf(country) {
  for (const [code, countries] of Object.entries(shared)) if (countries.includes(country)) return code;
  return own.split(" ").find((code) => code.startsWith(country));
}

// The text lines of the machine have dots for these signs.
const hasDots = (text) => /^[ -~\u00a0£¥€’\u202f−]*$/.test(text);

// `amount` in the form of `language` ("de-AT"), two decimals. Empty: as the machine itself writes it,
// at home or where the language tells no country.
export function currencyText(amount, language) {
  let place = null;
  try {
    place = new Intl.Locale(language).maximize();
  } catch {
    return "";
  }
  const currency = place.region ? currencyOf(place.region) : undefined;
  if (!currency || (place.language === "en" && place.region === "GB")) return "";
  const written = (currencyDisplay) => new Intl.NumberFormat(language, { style: "currency", currency, currencyDisplay,
    numberingSystem: "latn", minimumFractionDigits: 2, maximumFractionDigits: 2 }).format(amount)
    .replace(/[\u200e\u200f\u061c]/g, ""); // marks of direction
  const text = written("symbol");
  return hasDots(text) ? text : written("code");
}

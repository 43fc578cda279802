#include "lab/program/report.h"

#include "lab/program/assets.h"

namespace hustle::lab {

std::string page_of(const std::vector<result>& results) {
    std::string data = "[";
    for (const result& r : results) {
        if (data.size() > 1)
            data += ",\n";
        data += result_text(r.t, r.machines, r.part);
    }
    data += "]";
    std::string page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                       "<title>Hoard Hustle: what the machine pays</title>\n<style>\n";
    page.append(lab_css).append("</style>\n</head>\n<body>\n<main id=\"lab\" class=\"lab\">\n");
    page += "<noscript>This page draws its charts with a script.</noscript>\n</main>\n";
    page.append("<script type=\"application/json\" id=\"lab-data\">")
        .append(data)
        .append("</script>\n<script>\n");
    page.append(lab_js).append("\nhustleLab.show(document.getElementById('lab'),"
                               " JSON.parse(document.getElementById('lab-data').textContent));\n");
    return page + "</script>\n</body>\n</html>\n";
}

} // namespace hustle::lab

#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

#include <array>

// Vietnamese words that name a document. A title's head stands first, so a noun is listed with and without the
// classifier that may open it ("bản kế hoạch", "kế hoạch"). Forms without accents are derived. To mend: move or add a
// word inside its kind's row, common word first, never under two kinds; the number of words is counted by a test, which
// changes with the list.

namespace vellark::KindWords {

namespace {

constexpr std::array<Layered, 55> words{{
    {DocumentKind::prd,
     "tài liệu yêu cầu sản phẩm, yêu cầu sản phẩm, bản mô tả tính năng, yêu cầu tính năng, "
     "mô tả tính năng",
     ""},
    {DocumentKind::spec,
     "đặc tả, bản đặc tả, tài liệu đặc tả, yêu cầu kỹ thuật, yêu cầu chức năng, yêu cầu hệ thống, "
     "tài liệu yêu cầu, thông số kỹ thuật, phân tích yêu cầu, yêu cầu nghiệp vụ, yêu cầu phần mềm",
     ""},
    {DocumentKind::plan,
     "kế hoạch, bản kế hoạch, lộ trình, chiến lược, thời gian biểu, thời khóa biểu, "
     "lịch làm việc, mục tiêu, lịch công tác, lịch trình công tác, kh, lịch trực, lịch thi, "
     "lịch trình công việc, tiến độ",
     ""},
    {DocumentKind::userStories,
     "câu chuyện người dùng, trường hợp sử dụng, tiêu chí chấp nhận, tiêu chí nghiệm thu, "
     "ca sử dụng, user story",
     ""},
    {DocumentKind::meetingNotes,
     "biên bản, ghi chú cuộc họp, ghi chú họp, nội dung cuộc họp, tóm tắt cuộc họp, "
     "chương trình họp, ghi chép cuộc họp, bb họp, bb",
     ""},
    {DocumentKind::report,
     "báo cáo, bản báo cáo, phân tích, đánh giá, tổng kết, kiểm toán, bài báo cáo, sơ kết, bc, "
     "kết quả, tóm tắt",
     ""},
    {DocumentKind::research,
     "nghiên cứu, bài nghiên cứu, khảo sát, phân tích thị trường, phân tích đối thủ, "
     "phân tích swot, so sánh, bảng so sánh, tổng quan tài liệu, phiếu khảo sát, "
     "kết quả khảo sát, điều tra",
     ""},
    {DocumentKind::retrospective, "rút kinh nghiệm, bài học kinh nghiệm, tổng kết dự án, tổng kết sprint, nhìn lại",
     ""},
    {DocumentKind::checklist,
     "danh sách kiểm tra, bảng kiểm, danh sách công việc, việc cần làm, "
     "danh sách việc cần làm, danh sách mua sắm, công việc cần làm, checklist",
     ""},
    {DocumentKind::proposal, "đề xuất, tờ trình, đề án, phương án, kiến nghị, hồ sơ đề xuất, hồ sơ dự thầu", ""},
    {DocumentKind::memo, "ghi chú, ghi nhớ, ghi chép, bản ghi nhớ, phiếu nhắc việc", ""},
    {DocumentKind::presentation,
     "bài thuyết trình, thuyết trình, bản trình bày, bài trình bày, slide thuyết trình, "
     "bản trình chiếu, bài trình chiếu, slide giới thiệu",
     ""},
    {DocumentKind::designDoc,
     "tài liệu thiết kế, thiết kế hệ thống, thiết kế kỹ thuật, thiết kế phần mềm, "
     "thiết kế cơ sở dữ liệu, mô hình dữ liệu, sơ đồ kiến trúc, lưu đồ, kiến trúc, "
     "tổng quan kiến trúc, thiết kế kiến trúc",
     ""},
    {DocumentKind::apiDoc,
     "tài liệu api, đặc tả api, hướng dẫn api, tài liệu tích hợp api, mô tả api, "
     "mô tả các endpoint, tham chiếu",
     ""},
    {DocumentKind::testPlan,
     "kế hoạch kiểm thử, kế hoạch test, trường hợp kiểm thử, kịch bản kiểm thử, "
     "kịch bản test, tài liệu kiểm thử, ca kiểm thử, bộ test case",
     ""},
    {DocumentKind::bugReport, "báo cáo lỗi, báo lỗi, danh sách lỗi, mô tả lỗi, lỗi", ""},
    {DocumentKind::codeReview,
     "đánh giá mã nguồn, đánh giá code, kiểm tra mã nguồn, nhận xét code, review code, "
     "nhận xét mã nguồn, kết quả rà soát code, rà soát code",
     ""},
    {DocumentKind::postmortem, "báo cáo sự cố, phân tích sự cố, phân tích nguyên nhân gốc rễ", ""},
    {DocumentKind::changelog,
     "nhật ký thay đổi, lịch sử thay đổi, lịch sử phiên bản, lịch sử cập nhật, "
     "ghi chú phát hành, ghi chú phiên bản, nội dung cập nhật",
     ""},
    {DocumentKind::guide,
     "hướng dẫn, tài liệu hướng dẫn, sách hướng dẫn, cẩm nang, sổ tay, quy trình, "
     "cách sử dụng, cách cài đặt, cách dùng, tài liệu kỹ thuật, khắc phục sự cố, "
     "xử lý sự cố, thủ tục, các bước, hdsd",
     ""},
    {DocumentKind::data,
     "dữ liệu, bộ dữ liệu, số liệu, thống kê, bảng thống kê, danh sách, bảng điểm, "
     "bảng số liệu, danh bạ, bảng dữ liệu",
     ""},
    {DocumentKind::prompt, "prompt, prompt viết, prompt tạo, câu lệnh", ""},
    {DocumentKind::design,
     "thiết kế, bản thiết kế, bản vẽ, phác thảo, nguyên mẫu, giao diện, "
     "chân dung người dùng, hành trình khách hàng, chân dung khách hàng, mockup màn hình, "
     "wireframe màn hình, bản phác thảo",
     ""},
    {DocumentKind::designSystem,
     "hệ thống thiết kế, bộ nhận diện thương hiệu, nhận diện thương hiệu, "
     "hướng dẫn thương hiệu, hướng dẫn thiết kế, cẩm nang thương hiệu, quy chuẩn",
     ""},
    {DocumentKind::marketingCopy,
     "bài quảng cáo, nội dung quảng cáo, quảng cáo, bài viết quảng cáo, khẩu hiệu, tờ rơi, "
     "mô tả sản phẩm, bài viết bán hàng, content quảng cáo, slogan",
     ""},
    {DocumentKind::sales,
     "tài liệu bán hàng, hồ sơ năng lực, kịch bản bán hàng, bảng giá, thư chào hàng, chào hàng, "
     "hồ sơ chào hàng, kịch bản chốt sale, kịch bản tư vấn, thư chào giá",
     ""},
    {DocumentKind::pressRelease, "thông cáo, tcbc", ""},
    {DocumentKind::newsletter, "bản tin", ""},
    {DocumentKind::socialPost,
     "bài đăng, bài viết facebook, bài viết mạng xã hội, nội dung mạng xã hội, "
     "caption instagram",
     ""},
    {DocumentKind::businessPlan, "kế hoạch kinh doanh, mô hình kinh doanh, phương án kinh doanh, đề án kinh doanh", ""},
    {DocumentKind::finance,
     "ngân sách, dự toán, hóa đơn, hoá đơn, báo giá, bảng báo giá, báo cáo tài chính, "
     "báo cáo thu chi, bảng lương, bảng cân đối kế toán, sổ thu chi, quyết toán, dòng tiền, "
     "kế hoạch tài chính, phân tích tài chính, phiếu thu, đơn đặt hàng, đề nghị thanh toán, "
     "báo cáo chi phí, phiếu chi, phiếu lương, tờ khai thuế, giấy đề nghị thanh toán, "
     "biên lai, bảng quyết toán",
     ""},
    {DocumentKind::legal,
     "hợp đồng, mẫu hợp đồng, dự thảo hợp đồng, thỏa thuận, thoả thuận, điều khoản, "
     "giấy ủy quyền, đơn khởi kiện, biên bản ghi nhớ, biên bản nghiệm thu, "
     "biên bản bàn giao, giấy phép, điều lệ, bản cam kết, nghị định, phụ lục hợp đồng, "
     "giấy uỷ quyền, biên bản thanh lý, cam kết, di chúc, hdld",
     ""},
    {DocumentKind::policy,
     "chính sách, quy định, quy chế, nội quy, quy tắc, tiêu chuẩn, quyết định, nghị quyết, "
     "bộ quy tắc",
     ""},
    {DocumentKind::notice, "thông báo, giấy mời, thư mời, thiệp mời", ""},
    {DocumentKind::jobPosting,
     "tin tuyển dụng, thông báo tuyển dụng, tuyển dụng, mô tả công việc, "
     "bản mô tả công việc, cần tuyển, tuyển nhân viên",
     ""},
    {DocumentKind::email,
     "thư điện tử, email gửi, email cảm ơn, email mời, email xin, mẫu email, thư cảm ơn, "
     "thư gửi, thư xin lỗi, công văn, mẫu mail, đơn xin nghỉ việc, thư khiếu nại",
     "thư"},
    {DocumentKind::faq, "câu hỏi thường gặp, hỏi đáp, giải đáp thắc mắc, faq", ""},
    {DocumentKind::blogPost, "bài viết, bài blog, bài đăng blog, bài báo", ""},
    {DocumentKind::script, "kịch bản, lời thoại, phụ đề, bài phát biểu, lời dẫn, diễn văn", ""},
    {DocumentKind::essay,
     "bài luận, bài tiểu luận, bài văn, cảm nhận, cảm nghĩ, tản văn, review phim, nghị luận, "
     "tùy bút, bài bình, bài cảm nhận",
     ""},
    {DocumentKind::story, "truyện, tiểu thuyết, bài thơ, thơ, cổ tích, lời bài hát, tập thơ", ""},
    {DocumentKind::translation, "bản dịch, bài dịch, dịch tài liệu, dịch công chứng, dịch thuật", ""},
    {DocumentKind::learning,
     "giáo án, giáo trình, tài liệu học tập, tài liệu đào tạo, chương trình đào tạo, "
     "chương trình học, khóa học, khoá học, bài học, đề cương môn học, kế hoạch bài dạy, "
     "chương trình giảng dạy, đề cương khóa học, tài liệu tập huấn, đề cương chi tiết, "
     "đề cương học phần",
     ""},
    {DocumentKind::lectureNotes,
     "bài giảng, ghi chép bài giảng, ghi chú bài giảng, tóm tắt bài giảng, slide bài giảng, "
     "vở ghi, ghi chép trên lớp",
     ""},
    {DocumentKind::studyNotes,
     "ghi chú học tập, ghi chép học tập, đề cương ôn tập, đề cương ôn thi, ôn tập, "
     "tài liệu ôn tập, tóm tắt kiến thức, tổng hợp kiến thức, sơ đồ tư duy, từ vựng, "
     "tài liệu ôn thi, tóm tắt ôn thi, tóm tắt lý thuyết, ghi chú ôn thi",
     ""},
    {DocumentKind::readingNotes,
     "ghi chú đọc sách, tóm tắt sách, tóm tắt tác phẩm, cảm nhận sách, review sách, "
     "ghi chép đọc sách, nhật ký đọc",
     ""},
    {DocumentKind::exercises, "bài tập, phiếu bài tập, phiếu học tập, bài toán, bài thực hành, luyện tập", ""},
    {DocumentKind::solutions, "lời giải, đáp án, bài giải, hướng dẫn giải, giải bài tập, giải đề, giải chi tiết", ""},
    {DocumentKind::quiz,
     "đề thi, bài thi, đề kiểm tra, bài kiểm tra, trắc nghiệm, bài trắc nghiệm, "
     "câu hỏi trắc nghiệm, ngân hàng câu hỏi, kiểm tra giữa kỳ, bộ đề, thi thử, "
     "kiểm tra 15 phút",
     ""},
    {DocumentKind::errorNotes,
     "sổ tay lỗi sai, tổng hợp lỗi sai, lỗi sai, sổ ghi lỗi, ghi chép câu sai, "
     "những câu hay sai",
     ""},
    {DocumentKind::paper,
     "luận văn, luận án, khóa luận, khoá luận, đồ án, bài báo khoa học, đề tài nghiên cứu, "
     "nghiên cứu khoa học, chuyên đề tốt nghiệp, đề cương luận văn, tiểu luận",
     ""},
    {DocumentKind::journal, "nhật ký, sổ nhật ký", ""},
    {DocumentKind::resume,
     "sơ yếu lý lịch, lý lịch, hồ sơ xin việc, đơn xin việc, thư xin việc, cv xin việc, "
     "cv của, thư ứng tuyển, thư giới thiệu, cv",
     ""},
    {DocumentKind::travelPlan,
     "kế hoạch du lịch, lịch trình, kế hoạch chuyến đi, hành trình, cẩm nang du lịch, "
     "kế hoạch đi chơi",
     ""},
    {DocumentKind::recipe, "công thức, cách nấu, cách làm bánh, thực đơn, cách làm món", ""},
}};

}  // namespace

std::span<const Layered> vietnamese() {
    return words;
}

}  // namespace vellark::KindWords
